pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The folders that copies would replace: whose each is, where it stands, and a way to look at it. */
Column {
    id: list

    required property var folders

    /** The keyboard has come to a row. */
    signal reached(row: Item)

    spacing: Metrics.small

    Repeater {
        model: list.folders

        Item {
            id: row

            required property targetOccupant modelData

            implicitHeight: look.height
            width: list.width

            Tag {
                id: assistant

                anchors.verticalCenter: parent.verticalCenter
                text: row.modelData.assistant
            }
            Label {
                anchors.left: assistant.right
                anchors.leftMargin: Metrics.medium
                anchors.right: look.left
                anchors.rightMargin: Metrics.medium
                anchors.verticalCenter: parent.verticalCenter
                color: Colors.secondary
                elide: Text.ElideMiddle
                font: Typography.small
                text: row.modelData.path
            }
            ActionButton {
                id: look

                anchors.right: parent.right
                symbol: "folder-open"
                text: "Ouvrir le dossier"

                Accessible.description: row.modelData.path
                onActiveFocusChanged: if (activeFocus) list.reached(row)
                onClicked: Qt.openUrlExternally(row.modelData.url)
            }
        }
    }
}
