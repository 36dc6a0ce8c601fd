import QtQuick
import VORNELDesignSystem

/** A line of the rail: a symbol, a few words and, at the end, a number. */
Item {
    id: line

    required property string symbol
    required property string text
    required property color symbolColor
    required property color color
    property string number

    Symbol {
        id: symbol

        anchors.left: parent.left
        anchors.leftMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        color: line.symbolColor
        height: Metrics.symbol
        name: line.symbol
        width: Metrics.symbol
    }
    Text {
        anchors.left: symbol.right
        anchors.leftMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        color: line.color
        elide: Text.ElideRight
        font: Typography.control
        horizontalAlignment: Text.AlignLeft
        maximumLineCount: 1
        renderType: Text.NativeRendering
        text: line.text
        textFormat: Text.PlainText
        width: (line.number === "" ? line.width : number.x) - x - Metrics.tiny
    }
    Text {
        id: number

        anchors.right: parent.right
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.secondary
        font: Typography.small
        maximumLineCount: 1
        renderType: Text.NativeRendering
        text: line.number
    }
}
