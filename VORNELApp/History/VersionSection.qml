import QtQuick
import VORNELDesignSystem

/** The day of the versions below. */
Item {
    required property string section

    implicitHeight: Metrics.controlHeight
    width: parent?.width ?? 0

    Label {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.tiny
        anchors.left: parent.left
        anchors.leftMargin: Metrics.small
        anchors.right: parent.right
        color: Colors.secondary
        font: Typography.label
        text: parent.section.toUpperCase()

        Accessible.name: parent.section
    }
}
