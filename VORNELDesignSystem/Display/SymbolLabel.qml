import QtQuick
import VORNELDesignSystem

/** A symbol and a few words side by side, in the middle of the item and within it. Either may be missing. */
Item {
    id: label

    required property string text
    required property color color
    required property font font
    property string symbol
    property color symbolColor: color
    property bool isSymbolTrailing: false
    property bool isSymbolAlone: false

    readonly property real besideText: symbol === "" ? 0 : Metrics.symbol + row.spacing

    implicitWidth: isSymbolAlone ? Metrics.symbol : besideText + Math.ceil(words.implicitWidth)
    implicitHeight: row.implicitHeight

    Row {
        id: row

        anchors.centerIn: parent
        layoutDirection: label.isSymbolTrailing ? Qt.RightToLeft : Qt.LeftToRight
        spacing: Metrics.small

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: label.symbolColor
            height: Metrics.symbol
            name: label.symbol
            visible: label.symbol !== ""
            width: Metrics.symbol
        }
        Text {
            id: words

            anchors.verticalCenter: parent.verticalCenter
            color: label.color
            elide: Text.ElideRight
            font: label.font
            maximumLineCount: 1
            renderType: Text.NativeRendering
            text: label.text
            textFormat: Text.PlainText
            visible: !label.isSymbolAlone
            width: Math.min(implicitWidth, label.width - label.besideText)
        }
    }
}
