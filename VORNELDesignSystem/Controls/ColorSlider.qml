import QtQuick
import QtQuick.Templates as T

/** One measure of a colour, on a track that shows what it would become. Arrow keys move it by a step. */
T.Slider {
    id: slider

    required property string label
    required property string valueText
    required property color hue
    required property Gradient track

    implicitHeight: 44
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    leftPadding: 0
    rightPadding: 0
    stepSize: 1

    Accessible.description: valueText
    Accessible.name: label

    background: Item {
        Label {
            anchors.left: parent.left
            color: Colors.secondary
            font: Typography.small
            text: slider.label

            Accessible.ignored: true
        }
        Label {
            anchors.right: parent.right
            font: Typography.small
            text: slider.valueText

            Accessible.ignored: true
        }
        Rectangle {
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 6
            anchors.left: parent.left
            anchors.right: parent.right
            border.color: Colors.line
            border.width: Metrics.hairline
            gradient: slider.track
            height: 12
            radius: 6
        }
    }
    handle: Rectangle {
        x: slider.visualPosition * (slider.width - width)
        y: slider.height - height - 1
        border.color: Colors.text
        border.width: Metrics.focusWidth
        color: slider.hue
        height: 22
        radius: width / 2
        width: height

        Rectangle {
            anchors.fill: parent
            anchors.margins: -2 * Metrics.focusWidth
            border.color: Colors.accent
            border.width: Metrics.focusWidth
            color: "transparent"
            radius: width / 2
            visible: slider.activeFocus && slider.focusReason !== Qt.MouseFocusReason
        }
    }
}
