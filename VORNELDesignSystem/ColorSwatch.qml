import QtQuick
import QtQuick.Templates as T
import VORNELDesignSystem

/** One colour to choose among several. */
T.RadioButton {
    id: swatch

    required property color hue

    implicitWidth: 32
    implicitHeight: 32
    focusPolicy: Qt.StrongFocus

    Accessible.name: text

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
            visible: swatch.checked
            width: Metrics.symbol
        }
        FocusRing {
            control: swatch
        }
    }
}
