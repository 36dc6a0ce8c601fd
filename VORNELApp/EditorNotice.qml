import QtQuick
import VORNELDesignSystem

/** Tells over the text what has become of it elsewhere, and what can be done: its children are the actions. */
Rectangle {
    id: notice

    required property string text
    default property alias actions: row.data

    implicitHeight: Math.max(line.height, row.height) + 2 * Metrics.small
    border.color: Colors.warning
    border.width: Metrics.hairline
    color: Colors.tint(Colors.warning)
    radius: Metrics.controlRadius

    Accessible.name: text
    Accessible.role: Accessible.AlertMessage

    Label {
        id: line

        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        anchors.right: row.left
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        lineHeight: 1.15
        text: notice.text
        wrapMode: Text.Wrap

        Accessible.ignored: true
    }
    Row {
        id: row

        anchors.right: parent.right
        anchors.rightMargin: Metrics.small
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small
    }
}
