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

        Column {
            id: row

            required property blockedImport modelData

            bottomPadding: Metrics.small
            leftPadding: Metrics.large
            spacing: Metrics.tiny
            width: folders.width

            Accessible.name: modelData.name + ", " + modelData.assistant + ", " + modelData.reasonText
            Accessible.role: Accessible.ListItem

            Row {
                spacing: Metrics.small

                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    font: Typography.control
                    text: row.modelData.name
                    width: Math.min(implicitWidth, row.width - 120)
                }
                Tag {
                    text: row.modelData.assistant
                }
            }
            Label {
                color: Colors.secondary
                font: Typography.small
                text: row.modelData.reasonText
                width: row.width - 2 * row.leftPadding
            }
        }
    }
}
