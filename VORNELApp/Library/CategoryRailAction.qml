import QtQuick
import VORNELDesignSystem

/** A command of the rail, in line with its categories. */
ActionButton {
    id: action

    readonly property color hue: enabled ? Colors.secondary : Colors.muted

    isFlat: true
    leftPadding: 0
    rightPadding: 0

    contentItem: CategoryRailLine {
        color: action.hue
        symbol: action.symbol
        symbolColor: action.hue
        text: action.text
    }
}
