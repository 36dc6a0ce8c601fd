import QtQuick
import QtQuick.Templates as T
import VORNELDesignSystem

/** One colour to choose among several, and its name. Whoever answers the click sets `isChosen`. */
T.RadioButton {
    id: swatch

    required property color hue
    property bool isChosen: false

    implicitWidth: 32
    implicitHeight: 32
    autoExclusive: false
    checked: isChosen
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: if (enabled) clicked()
    onClicked: checked = Qt.binding(() => isChosen) // the click has replaced the binding

    contentItem: Item {}
    indicator: Rectangle {
        anchors.fill: parent
        color: swatch.hue
        radius: Metrics.controlRadius

        Symbol {
            anchors.centerIn: parent
            color: Colors.canvas
            height: Metrics.symbol
            name: "check"
            visible: swatch.isChosen
            width: Metrics.symbol
        }
        FocusRing {
            control: swatch
        }
    }

    Hint {
        control: swatch
        text: swatch.text
        visible: swatch.hovered
    }
}
