import QtQuick
import VORNELDesignSystem

/** The last failure, over whatever is shown, until it is closed. Without a text, nothing. */
FocusScope {
    id: panel

    required property string text

    signal dismissed

    enabled: visible
    implicitHeight: Math.max(message.height, close.height) + 2 * Metrics.large
    visible: text !== ""

    Accessible.name: text
    Accessible.role: Accessible.AlertMessage
    Keys.onEscapePressed: dismissed()

    Rectangle {
        anchors.fill: parent
        border.color: Colors.danger
        border.width: Metrics.hairline
        color: Colors.raised
        radius: Metrics.cardRadius
    }
    Symbol {
        id: symbol

        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.danger
        height: Metrics.symbol
        name: "triangle-alert"
        width: Metrics.symbol
    }
    Label {
        id: message

        anchors.left: symbol.right
        anchors.leftMargin: Metrics.medium
        anchors.right: close.left
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        lineHeight: 1.3
        maximumLineCount: 6
        text: panel.text
        wrapMode: Text.Wrap
    }
    ActionButton {
        id: close

        anchors.right: parent.right
        anchors.rightMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        focus: true
        text: "Fermer"
        onClicked: panel.dismissed()
    }
}
