import QtQuick

/**
 * A line of text, whatever breaks it holds, or several where it wraps. It begins at the left in every script, beside
 * what it belongs to.
 */
Text {
    color: Colors.text
    elide: Text.ElideRight
    font: Typography.body
    horizontalAlignment: Text.AlignLeft
    maximumLineCount: wrapMode === Text.NoWrap ? 1 : 0x7fffffff
    renderType: Text.NativeRendering
    textFormat: Text.PlainText

    Accessible.name: text
    Accessible.role: Accessible.StaticText
}
