import QtQuick
import QtQuick.Templates as T
import VORNELDesignSystem

/** A keyword to press, with a symbol that says what that does. */
T.Button {
    id: chip

    property string symbol

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 26
    focusPolicy: Qt.StrongFocus
    font: Typography.small
    hoverEnabled: true
    leftPadding: Metrics.small
    rightPadding: Metrics.small

    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()

    background: Rectangle {
        border.color: Colors.line
        border.width: Metrics.hairline
        color: chip.down ? Colors.line : chip.hovered ? Colors.hover : Colors.raised
        radius: Metrics.small - 2

        FocusRing {
            control: chip
            radius: parent.radius + 2 * Metrics.focusWidth
        }
    }
    contentItem: Row {
        spacing: Metrics.tiny

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.secondary
            height: Metrics.medium
            name: chip.symbol
            width: height
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.secondary
            font: chip.font
            text: chip.text
            width: Math.min(implicitWidth, 160)

            Accessible.ignored: true
        }
    }
}
