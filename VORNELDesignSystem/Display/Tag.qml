import QtQuick

/** A keyword. */
Rectangle {
    id: tag

    required property string text

    implicitWidth: Math.min(label.implicitWidth, 160) + 2 * Metrics.small
    implicitHeight: 22
    border.color: Colors.line
    border.width: Metrics.hairline
    color: "transparent"
    radius: 6

    Accessible.name: text
    Accessible.role: Accessible.StaticText

    Text {
        id: label

        anchors.centerIn: parent
        color: Colors.secondary
        elide: Text.ElideRight
        font: Typography.small
        maximumLineCount: 1
        renderType: Text.NativeRendering
        text: tag.text
        textFormat: Text.PlainText
        width: Math.min(implicitWidth, 160)
    }
}
