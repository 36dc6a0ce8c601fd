import QtQuick
import QtQuick.Templates as T

/** A keyword that narrows what is shown, or doesn't. Whoever answers the click sets `isChosen`. */
T.CheckBox {
    id: chip

    property bool isChosen: false
    property string symbol
    property color hue: Colors.accent

    implicitWidth: implicitContentWidth + 2 * Metrics.medium
    implicitHeight: 26
    checked: isChosen
    focusPolicy: Qt.StrongFocus
    font: Typography.small
    hoverEnabled: true

    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: if (enabled) clicked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()
    onClicked: checked = Qt.binding(() => isChosen) // the click has replaced the binding

    background: Rectangle {
        border.color: chip.isChosen ? chip.hue : Colors.line
        border.width: Metrics.hairline
        color: chip.isChosen ? Colors.tint(chip.hue) : chip.hovered ? Colors.hover : "transparent"
        radius: height / 2

        FocusRing {
            control: chip
            radius: parent.radius
        }
    }
    contentItem: SymbolLabel {
        color: chip.isChosen ? Colors.text : Colors.secondary
        font: chip.font
        symbol: chip.symbol
        symbolColor: chip.hue
        text: chip.text
    }
}
