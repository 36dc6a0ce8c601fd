import QtQuick

/** A short confirmation: a dot and a few words and, below them where there is one, an action. */
Rectangle {
    id: capsule

    required property string text
    property string action
    property string actionName: action
    property string actionSymbol

    /** Beyond this, the words take two lines. */
    property real maximumWidth: Infinity

    readonly property alias isHovered: pointer.hovered

    /** Whether the action has it. */
    readonly property alias hasKeyboard: button.activeFocus

    signal actionAsked

    implicitWidth: Math.ceil(Math.max(row.implicitWidth, button.visible ? button.implicitWidth : 0)) + 2 * Metrics.medium
    implicitHeight: Metrics.controlHeight + (button.visible ? button.height + Metrics.small : 0)
    border.color: Colors.line
    border.width: Metrics.hairline
    color: Colors.raised
    radius: Metrics.controlHeight / 2

    Accessible.description: action === "" ? "" : actionName
    Accessible.name: text
    Accessible.role: Accessible.AlertMessage

    HoverHandler {
        id: pointer
    }
    Row {
        id: row

        height: Metrics.controlHeight
        spacing: Metrics.small
        x: Metrics.medium

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.success
            height: 8
            radius: 4
            width: 8
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.text
            font: Typography.label
            maximumLineCount: 2
            renderType: Text.NativeRendering
            text: capsule.text
            width: Math.min(implicitWidth, capsule.maximumWidth - row.x - x - Metrics.medium)
            wrapMode: Text.Wrap
        }
    }
    ActionButton {
        id: button

        anchors.left: row.left
        anchors.right: parent.right
        anchors.rightMargin: Metrics.medium
        anchors.top: row.bottom
        focusPolicy: Qt.TabFocus // a click leaves the keyboard where it is
        symbol: capsule.actionSymbol
        text: capsule.action
        visible: text !== ""

        Accessible.name: capsule.actionName
        onClicked: capsule.actionAsked()
    }
}
