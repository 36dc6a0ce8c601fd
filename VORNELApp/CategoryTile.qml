import QtQuick
import VORNELDesignSystem

/** A category's symbol on a tint of its colour; in selection mode, the mark of what is selected. */
Rectangle {
    id: tile

    required property string symbol
    required property color hue
    property bool isSelecting: false
    property bool isSelected: false

    implicitWidth: 40
    implicitHeight: 40
    border.color: isSelecting ? (isSelected ? Colors.accent : Colors.muted) : "transparent"
    border.width: Metrics.focusWidth
    color: !isSelecting ? Colors.tint(hue) : isSelected ? Colors.accent : "transparent"
    radius: Metrics.controlRadius + 2

    Symbol {
        anchors.centerIn: parent
        color: tile.isSelecting ? Colors.inkOnAccent : tile.hue
        height: 20
        name: tile.isSelecting ? "check" : tile.symbol
        visible: !tile.isSelecting || tile.isSelected
        width: 20
    }
}
