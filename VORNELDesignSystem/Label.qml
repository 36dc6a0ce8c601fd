import QtQuick

/** A line of text, whatever breaks it holds, or several where it wraps. */
Text {
    color: Colors.text
    elide: Text.ElideRight
    font: Typography.body
    maximumLineCount: wrapMode === Text.NoWrap ? 1 : 0x7fffffff
    renderType: Text.NativeRendering
    textFormat: Text.PlainText

    Accessible.name: text
    Accessible.role: Accessible.StaticText
}
