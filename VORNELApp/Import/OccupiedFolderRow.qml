import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What stands in the place of one copy. */
Item {
    id: row

    required property targetOccupant occupant
    required property bool canExclude

    /** The keyboard has come here. */
    signal reached

    signal excluded

    function focusFirst(): void {
        (exclude.visible ? exclude : look).forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: Math.max(look.height, texts.height)

    Tag {
        id: assistant

        anchors.verticalCenter: parent.verticalCenter
        text: row.occupant.assistant
    }
    Column {
        id: texts

        anchors.left: assistant.right
        anchors.leftMargin: Metrics.medium
        anchors.right: buttons.left
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.tiny

        Label {
            color: Colors.secondary
            elide: Text.ElideMiddle
            font: Typography.small
            text: row.occupant.path
            width: parent.width
        }
        Label {
            color: Colors.danger
            font: Typography.small
            text: row.occupant.refusal
            visible: text !== ""
            width: parent.width
            wrapMode: Text.Wrap
        }
    }
    Row {
        id: buttons

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small

        ActionButton {
            id: exclude

            text: "Ne pas importer"
            visible: row.canExclude

            Accessible.description: row.occupant.path
            onActiveFocusChanged: if (activeFocus) row.reached()
            onClicked: row.excluded()
        }
        ActionButton {
            id: look

            symbol: "folder-open"
            text: "Ouvrir le dossier"

            Accessible.description: row.occupant.path
            onActiveFocusChanged: if (activeFocus) row.reached()
            onClicked: Qt.openUrlExternally(row.occupant.url)
        }
    }
}
