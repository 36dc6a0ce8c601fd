import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Below the cards: the pages and, in selection mode, what can be done with the selected skills. */
ListFooter {
    id: footer

    required property AppModel model
    required property CardPage page
    required property SkillSelection selection

    signal exportAsked
    signal propertiesAsked
    signal trashAsked

    implicitHeight: 60 // also while it is hidden

    DeferredItem {
        id: bar

        anchors.left: parent.left
        anchors.leftMargin: Metrics.huge
        anchors.right: pages.left
        anchors.rightMargin: Metrics.huge
        anchors.verticalCenter: parent.verticalCenter
        file: "SelectionBar.qml"
        isWanted: footer.selection.isSelecting
        properties: ({ model: footer.model, page: footer.page, selection: footer.selection })
    }
    Connections {
        function onExportAsked() {
            footer.exportAsked();
        }

        function onPropertiesAsked() {
            footer.propertiesAsked();
        }

        function onTrashAsked() {
            footer.trashAsked();
        }

        target: bar.item as SelectionBar
    }
    PageControls {
        id: pages

        anchors.right: parent.right
        anchors.rightMargin: Metrics.huge
        anchors.verticalCenter: parent.verticalCenter
        page: footer.page
    }
}
