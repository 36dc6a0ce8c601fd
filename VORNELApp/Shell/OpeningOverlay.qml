import QtQuick
import VORNELDesignSystem

/** Lies over the content while a skill is opened. */
Rectangle {
    color: Colors.scrim

    MouseArea {
        anchors.fill: parent
    }
    Surface {
        anchors.centerIn: parent
        height: column.height + 2 * Metrics.huge
        width: column.width + 2 * Metrics.page

        Column {
            id: column

            anchors.centerIn: parent
            spacing: Metrics.medium

            BusyGlyph {
                anchors.horizontalCenter: parent.horizontalCenter
                height: 32
                width: 32
            }
            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                font: Typography.label
                text: "OUVERTURE"
            }
            Label {
                anchors.horizontalCenter: parent.horizontalCenter
                color: Colors.secondary
                text: "Ouverture de la compétence"
            }
        }
    }
}
