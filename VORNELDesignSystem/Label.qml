import QtQuick

/** A line of text. It begins at the left in every script, beside what it belongs to. */
Text {
    color: Colors.text
    elide: Text.ElideRight
    font: Typography.body
    horizontalAlignment: Text.AlignLeft
    renderType: Text.NativeRendering
    textFormat: Text.PlainText

    Accessible.name: text
    Accessible.role: Accessible.StaticText
}
