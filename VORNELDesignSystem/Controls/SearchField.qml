import QtQuick
import VORNELDesignSystem

/** A field that searches while it is typed in. Esc, or the button at its end, empties it. */
TextEntry {
    id: field

    required property string clearText

    leftPadding: Metrics.medium + Metrics.symbol + Metrics.small
    rightPadding: Metrics.controlHeight
    Accessible.searchEdit: true
    Keys.onEscapePressed: event => {
        event.accepted = text !== "";
        clear();
    }

    Symbol {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.secondary
        height: Metrics.symbol
        name: "search"
        width: Metrics.symbol
    }
    ActionButton {
        anchors.right: parent.right
        anchors.rightMargin: 2
        anchors.verticalCenter: parent.verticalCenter
        height: Metrics.controlHeight - 4
        isCompact: true
        symbol: "x"
        text: field.clearText
        visible: field.text !== ""
        width: height
        onClicked: {
            field.clear();
            field.forceActiveFocus();
        }
    }
}
