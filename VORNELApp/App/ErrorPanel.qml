import QtQuick
import QtQuick.Templates as T
import VORNELDesignSystem

/** The last failure, until it is closed; a long one is scrolled. Without a text, nothing. */
FocusScope {
    id: panel

    required property string text

    /** The text of the button that leads to where it can be mended; without one, there is no button. */
    property string remedy

    signal dismissed
    signal remedied

    enabled: visible
    implicitHeight: Math.max(scroller.height, actions.height) + 2 * Metrics.large
    visible: text !== ""

    Accessible.name: text
    Accessible.role: Accessible.AlertMessage
    Keys.onDownPressed: scroller.flick(0, -600)
    Keys.onEscapePressed: dismissed()
    Keys.onUpPressed: scroller.flick(0, 600)

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
    Flickable {
        id: scroller

        anchors.left: symbol.right
        anchors.leftMargin: Metrics.medium
        anchors.right: actions.left
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: message.height
        height: Math.min(message.height, panel.Window.height / 3)

        T.ScrollBar.vertical: ScrollRail {}

        Label {
            id: message

            lineHeight: 1.3
            text: panel.text
            width: scroller.width - Metrics.medium
            wrapMode: Text.Wrap
        }
    }
    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small

        ActionButton {
            text: panel.remedy
            visible: text !== ""
            onClicked: panel.remedied()
        }
        ActionButton {
            focus: true
            text: "Fermer"
            onClicked: panel.dismissed()
        }
    }
}
