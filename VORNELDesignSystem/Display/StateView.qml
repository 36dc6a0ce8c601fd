import QtQuick
import VORNELDesignSystem

/** What a screen shows in place of its content: a symbol, a title, a line, and below them what helps. */
Column {
    id: view

    required property string title
    property string line
    property string symbol
    property color hue: Colors.secondary
    default property alias actions: actionRow.data

    spacing: Metrics.medium

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        color: Colors.tint(view.hue)
        height: 72
        radius: Metrics.cardRadius * 2
        visible: view.symbol !== ""
        width: 72

        Symbol {
            anchors.centerIn: parent
            color: view.hue
            height: Metrics.largeSymbol
            name: view.symbol
            width: Metrics.largeSymbol
        }
    }
    Item {
        height: Metrics.tiny
        width: 1
    }
    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        font: Typography.title
        horizontalAlignment: Text.AlignHCenter
        text: view.title
        width: Math.min(implicitWidth, view.width)
        wrapMode: Text.WordWrap
    }
    Label {
        anchors.horizontalCenter: parent.horizontalCenter
        color: Colors.secondary
        horizontalAlignment: Text.AlignHCenter
        lineHeight: 1.35
        text: view.line
        visible: text !== ""
        width: Math.min(implicitWidth, view.width)
        wrapMode: Text.Wrap
    }
    Row {
        id: actionRow

        anchors.horizontalCenter: parent.horizontalCenter
        spacing: Metrics.medium
        topPadding: Metrics.small
        visible: children.length > 0
    }
}
