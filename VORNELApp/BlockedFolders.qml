pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The folders that can't be imported, folded until someone asks. */
Column {
    id: folders

    required property var blocked
    property bool isUnfolded: false

    spacing: Metrics.small

    ActionButton {
        readonly property int count: folders.blocked.length

        symbol: folders.isUnfolded ? "chevron-down" : "chevron-right"
        text: count === 1 ? "1 dossier ignoré" : count + " dossiers ignorés"
        onClicked: folders.isUnfolded = !folders.isUnfolded

        Accessible.checkable: true
        Accessible.checked: folders.isUnfolded
    }
    Repeater {
        model: folders.isUnfolded ? folders.blocked : []

        Item {
            id: row

            required property blockedImport modelData

            readonly property string assistant: modelData.source === Vornel.TargetKind.claude ? "Claude" : "Codex"

            height: name.height + reason.height + Metrics.medium
            width: folders.width

            Accessible.name: modelData.name + ", " + assistant + ", " + modelData.reasonText()
            Accessible.role: Accessible.ListItem

            Label {
                id: name

                font: Typography.control
                text: row.modelData.name
                width: Math.min(implicitWidth, parent.width - tag.width - Metrics.small)
                x: Metrics.large
            }
            Tag {
                id: tag

                anchors.left: name.right
                anchors.leftMargin: Metrics.small
                anchors.verticalCenter: name.verticalCenter
                text: row.assistant
            }
            Label {
                id: reason

                anchors.top: name.bottom
                anchors.topMargin: Metrics.tiny
                color: Colors.secondary
                font: Typography.small
                text: row.modelData.reasonText()
                width: parent.width - x
                x: Metrics.large
            }
        }
    }
}
