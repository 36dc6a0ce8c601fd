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
    property real symbolSize: Metrics.symbol

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        color: line.symbolColor
        height: line.symbolSize
        name: line.symbol
        width: line.symbolSize
        x: Metrics.medium + (Metrics.symbol - width) / 2
    }
    Text {
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
        x: Metrics.symbol + 2 * Metrics.medium
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
