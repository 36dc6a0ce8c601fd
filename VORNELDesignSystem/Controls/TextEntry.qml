import QtQuick
import QtQuick.Templates as T

/** A line to type in. Unless it has the keyboard, the beginning of its text is shown. */
T.TextField {
    id: field

    property bool isRefused: false

    implicitWidth: 240
    implicitHeight: Metrics.controlHeight
    autoScroll: activeFocus
    color: enabled ? Colors.text : Colors.muted
    font: Typography.body
    leftPadding: Metrics.medium
    maximumLength: 1000000 // as long as what other programs may have written; Qt would cut it
    placeholderTextColor: Colors.muted
    rightPadding: Metrics.medium
    selectByMouse: true
    selectedTextColor: Colors.inkOnAccent
    selectionColor: Colors.accent
    verticalAlignment: TextInput.AlignVCenter

    Accessible.name: placeholderText

    background: Rectangle {
        border.color: field.isRefused ? Colors.danger : field.activeFocus ? Colors.accent : Colors.line
        border.width: field.activeFocus ? Metrics.focusWidth : Metrics.hairline
        color: Colors.surface
        radius: Metrics.controlRadius
    }

    Text {
        anchors.fill: parent
        anchors.leftMargin: field.leftPadding
        anchors.rightMargin: field.rightPadding
        color: field.placeholderTextColor
        elide: Text.ElideRight
        font: field.font
        renderType: Text.NativeRendering
        text: field.placeholderText
        verticalAlignment: Text.AlignVCenter
        visible: field.text === "" && field.preeditText === ""
    }
}
