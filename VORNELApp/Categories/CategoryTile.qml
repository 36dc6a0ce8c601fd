import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A category's picture on a tint of its colour; in selection mode, the mark of what is selected. */
Rectangle {
    id: tile

    required property string categoryID
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
        height: width
        name: tile.isSelecting ? "check" : CategoryVisuals.artwork(tile.categoryID)
        visible: !tile.isSelecting || tile.isSelected
        width: tile.isSelecting ? 20 : 28
    }
}
