import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What a list of skills is, how many there are, and what can be done with all of them. */
Item {
    id: header

    required property string title
    required property string countText
    required property string line
    default property alias actions: row.data

    implicitHeight: 88

    Label {
        id: title

        anchors.left: parent.left
        anchors.leftMargin: Metrics.huge
        anchors.top: parent.top
        anchors.topMargin: Metrics.huge
        font: Typography.title
        text: header.title

        Accessible.role: Accessible.Heading
    }
    Label {
        anchors.baseline: title.baseline
        anchors.left: title.right
        anchors.leftMargin: Metrics.medium
        color: Colors.secondary
        font: Typography.lead
        text: header.countText
        visible: text !== ""
    }
    Label {
        anchors.left: title.left
        anchors.right: row.left
        anchors.rightMargin: Metrics.large
        anchors.top: title.bottom
        anchors.topMargin: Metrics.small
        color: Colors.secondary
        font: Typography.small
        text: header.line
        visible: text !== ""
    }
    Row {
        id: row

        anchors.right: parent.right
        anchors.rightMargin: Metrics.huge
        anchors.top: parent.top
        anchors.topMargin: Metrics.huge
        spacing: Metrics.small
    }
}
