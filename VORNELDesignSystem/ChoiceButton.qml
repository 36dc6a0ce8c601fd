import QtQuick
import QtQuick.Templates as T
import VORNELDesignSystem

/** One of a few exclusive choices that stand side by side. Whoever answers the click sets `isChosen`. */
T.AbstractButton {
    id: choice

    property bool isChosen: false

    implicitWidth: Math.max(96, label.implicitWidth + Metrics.symbol + Metrics.small + 2 * Metrics.medium)
    implicitHeight: Metrics.controlHeight
    focusPolicy: Qt.StrongFocus
    font: Typography.control
    hoverEnabled: true

    Accessible.checkable: true
    Accessible.checked: isChosen
    Accessible.description: isChosen ? "sélectionné" : "non sélectionné"
    Accessible.name: text
    Accessible.role: Accessible.RadioButton
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()

    background: Rectangle {
        border.color: choice.isChosen ? Colors.accent : Colors.line
        border.width: Metrics.hairline
        color: choice.isChosen ? Colors.tint(Colors.accent) : choice.hovered ? Colors.hover : Colors.raised
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
                color: choice.isChosen ? Colors.accent : Colors.muted
                height: Metrics.symbol
                name: choice.isChosen ? "circle-check" : "circle"
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
