import QtQuick
import QtQuick.Templates as T

/** One of a few exclusive choices that stand side by side. Whoever answers the click sets `isChosen`. */
T.RadioButton {
    id: choice

    property bool isChosen: false

    implicitWidth: Math.max(96, implicitContentWidth + 2 * Metrics.medium)
    implicitHeight: Metrics.controlHeight
    autoExclusive: false
    checked: isChosen
    focusPolicy: Qt.StrongFocus
    font: Typography.control
    hoverEnabled: true

    Accessible.description: isChosen ? "sélectionné" : "non sélectionné"
    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: if (enabled) clicked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()
    onClicked: checked = Qt.binding(() => isChosen) // the click has replaced the binding

    background: Rectangle {
        border.color: choice.isChosen ? Colors.accent : Colors.line
        border.width: Metrics.hairline
        color: choice.isChosen ? Colors.tint(Colors.accent) : choice.hovered ? Colors.hover : Colors.raised
        radius: Metrics.controlRadius

        FocusRing {
            control: choice
        }
    }
    contentItem: SymbolLabel {
        color: choice.enabled ? Colors.text : Colors.muted
        font: choice.font
        symbol: choice.isChosen ? "circle-check" : "circle"
        symbolColor: choice.isChosen ? Colors.accent : Colors.muted
        text: choice.text
    }
}
