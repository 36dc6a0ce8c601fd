import QtQuick
import QtQuick.Layouts
import VORNELApp
import VORNELDesignSystem

/** The search, and what can be done from every screen. */
Item {
    id: toolbar

    required property AppModel model

    required property bool isSkillOpen

    signal creationAsked
    signal synchronizationAsked

    /** Without room for every word, the search keeps its own. */
    readonly property bool isNarrow: width < Metrics.roomForTexts

    function focusSearch(): void {
        search.forceActiveFocus(Qt.ShortcutFocusReason);
        search.selectAll();
    }

    implicitHeight: 68

    Accessible.name: "Outils"
    Accessible.role: Accessible.ToolBar

    Rectangle {
        anchors.bottom: parent.bottom
        color: Colors.line
        height: Metrics.hairline
        width: parent.width
    }
    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Metrics.huge
        anchors.rightMargin: Metrics.huge
        spacing: Metrics.medium

        SearchField {
            id: search

            Layout.fillWidth: true
            clearText: "Effacer"
            placeholderText: "Rechercher une compétence"
            onTextChanged: toolbar.model.searchText = text

            Binding on text {
                value: toolbar.model.searchText
            }
        }
        BusySignal {
            isBusy: toolbar.model.isWorking
        }
        ActionButton {
            enabled: toolbar.isSkillOpen && !toolbar.model.isWorking
            isCompact: toolbar.isNarrow
            symbol: "refresh-cw"
            text: "Synchroniser"
            onClicked: toolbar.synchronizationAsked()
        }
        ActionButton {
            enabled: !toolbar.model.isWorking
            isCompact: toolbar.isNarrow
            symbol: "rotate-cw"
            text: "Actualiser"
            onClicked: toolbar.model.reload()
        }
        ActionButton {
            enabled: !toolbar.model.isWorking
            role: toolbar.isSkillOpen ? ActionButton.Quiet : ActionButton.Primary // beside "Enregistrer"
            symbol: "plus"
            text: "Nouvelle compétence"
            onClicked: toolbar.creationAsked()
        }
    }
}
