import QtQuick
import QtQuick.Templates as T

/** The frame around the control that has the keyboard, drawn just outside of it. */
Rectangle {
    required property T.Control control

    anchors.fill: parent
    anchors.margins: -2 * Metrics.focusWidth
    border.color: Colors.accent
    border.width: Metrics.focusWidth
    color: "transparent"
    radius: Metrics.controlRadius + 2 * Metrics.focusWidth
    visible: control !== null && control.activeFocus && control.focusReason !== Qt.MouseFocusReason
}
