import QtQuick

/** A line of text. */
Text {
    color: Colors.text
    elide: Text.ElideRight
    font: Typography.body
    renderType: Text.NativeRendering
    textFormat: Text.PlainText

    Accessible.name: text
    Accessible.role: Accessible.StaticText
}
