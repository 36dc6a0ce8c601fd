import QtQuick
import QtQuick.Templates as T

/** The name of a control without words, shown while the pointer rests on it. */
T.ToolTip {
    id: hint

    required property Item control

    parent: control
    x: Math.round((control.width - width) / 2)
    y: control.height + Metrics.small
    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    delay: 600
    horizontalPadding: Metrics.small
    margins: Metrics.small
    verticalPadding: Metrics.tiny

    background: Rectangle {
        border.color: Colors.line
        border.width: Metrics.hairline
        color: Colors.raised
        radius: Metrics.tiny
    }
    contentItem: Text {
        color: Colors.text
        font: Typography.small
        renderType: Text.NativeRendering
        text: hint.text
    }
}
