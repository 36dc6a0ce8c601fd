import QtQuick
import QtQuick.Templates as T
import VORNELDesignSystem

/** A command of a menu, or one of several choices, of which the current one carries a check mark. */
T.MenuItem {
    id: item

    property string symbol
    property color symbolColor: foreground
    property bool isDestructive: false
    property bool isChosen: false

    readonly property color foreground: !enabled ? Colors.muted : isDestructive ? Colors.danger : Colors.text

    /** Once the menu has closed and given the keyboard back: for what opens a sheet, for example. */
    signal settled

    implicitWidth: 232
    implicitHeight: Metrics.controlHeight
    checked: isChosen
    font: Typography.body
    leftPadding: Metrics.medium
    rightPadding: Metrics.medium

    Accessible.name: text
    Accessible.onPressAction: if (enabled) triggered()
    onTriggered: {
        checked = Qt.binding(() => isChosen); // choosing it again would untick it
        pause.start();
    }

    Timer {
        id: pause

        interval: 0
        onTriggered: item.settled()
    }

    background: Rectangle {
        color: item.highlighted ? Colors.hover : "transparent"
        radius: Metrics.controlRadius - Metrics.tiny
    }
    contentItem: Row {
        spacing: Metrics.small

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: item.symbolColor
            height: Metrics.symbol
            name: item.symbol
            visible: item.symbol !== ""
            width: Metrics.symbol
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            color: item.foreground
            elide: Text.ElideRight
            font: item.font
            horizontalAlignment: Text.AlignLeft
            maximumLineCount: 1
            renderType: Text.NativeRendering
            text: item.text
            textFormat: Text.PlainText
            width: item.availableWidth - x - (item.checked ? Metrics.symbol : 0)
        }
    }
    indicator: Symbol {
        anchors.right: parent.right
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.accent
        height: Metrics.symbol
        name: "check"
        visible: item.checked
        width: Metrics.symbol
    }
}
