import QtQuick
import QtQuick.Templates as T
import VORNELDesignSystem

/** One of a few exclusive choices that stand side by side. */
T.RadioButton {
    id: choice

    implicitWidth: Math.max(96, label.implicitWidth + Metrics.symbol + Metrics.small + 2 * Metrics.medium)
    implicitHeight: Metrics.controlHeight
    focusPolicy: Qt.StrongFocus
    font: Typography.control
    hoverEnabled: true

    Accessible.description: checked ? "sélectionné" : "non sélectionné"
    Accessible.name: text
    Keys.onEnterPressed: click()
    Keys.onReturnPressed: click()

    background: Rectangle {
        border.color: choice.checked ? Colors.accent : Colors.line
        border.width: Metrics.hairline
        color: choice.checked ? Colors.tint(Colors.accent) : choice.hovered ? Colors.hover : Colors.raised
        radius: Metrics.controlRadius

        FocusRing {
            control: choice
            isShown: choice.visualFocus
        }
    }
    contentItem: Item {
        Row {
            anchors.centerIn: parent
            spacing: Metrics.small

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                color: choice.checked ? Colors.accent : Colors.muted
                height: Metrics.symbol
                name: choice.checked ? "circle-check" : "circle"
                width: Metrics.symbol
            }
            Text {
                id: label

                anchors.verticalCenter: parent.verticalCenter
                color: !choice.enabled ? Colors.muted : Colors.text
                font: choice.font
                renderType: Text.NativeRendering
                text: choice.text
            }
        }
    }
}
