pragma Singleton

import QtQuick

/** Durations in milliseconds. Unless `isEnabled`, nothing moves: everything is at its place at once. */
QtObject {
    property bool isEnabled: true

    readonly property int quick: isEnabled ? 120 : 0
    readonly property int normal: isEnabled ? 220 : 0
    readonly property int slow: isEnabled ? 420 : 0
    readonly property int easing: Easing.OutCubic

    /** How long one turn of a running glyph takes. */
    readonly property int turn: 1600
}
