pragma Singleton

import QtQuick
import VORNELDesignSystem

/** What the state of a skill's copies looks like. */
QtObject {
    /** In the order of the states, from `unknown`. */
    readonly property var hues: [Colors.muted, Colors.success, Colors.warning, Colors.warning, Colors.danger]

    function hue(state: int): color {
        return hues[state];
    }
}
