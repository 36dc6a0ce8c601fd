import QtQuick
import VORNELDesignSystem

/** The line above a pane: its name in capitals, and what belongs to it. */
Item {
    id: header

    required property string text
    default property alias extras: extras.data

    implicitHeight: Metrics.rowHeight

    Rectangle {
        anchors.bottom: parent.bottom
        color: Colors.line
        height: Metrics.hairline
        width: parent.width
    }
    Label {
        id: name

        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.secondary
        font: Typography.label
        text: header.text
    }
    Row {
        id: extras

        anchors.left: name.right
        anchors.leftMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.medium
    }
}
