pragma ComponentBehavior: Bound

import QtQuick

/** The product's sign at work: the light goes round its four tiles. */
Item {
    id: glyph

    property real turn

    implicitWidth: Metrics.symbol
    implicitHeight: Metrics.symbol

    Accessible.ignored: true

    NumberAnimation on turn {
        duration: Motion.turn
        from: 0
        loops: Animation.Infinite
        running: glyph.visible && Motion.isEnabled
        to: 4
    }

    Repeater {
        model: 4

        Rectangle {
            required property int index

            /** The tile's place clockwise, and how far behind it the light is. */
            readonly property int place: [0, 1, 3, 2][index]
            readonly property real lag: (glyph.turn - place + 4) % 4

            color: Colors.accent
            height: glyph.height * 0.44
            opacity: 0.2 + 0.8 * Math.max(0, 1 - lag / 2)
            radius: glyph.width * 0.1
            width: glyph.width * 0.44
            x: index % 2 === 0 ? 0 : glyph.width - width
            y: index < 2 ? 0 : glyph.height - height
        }
    }
}
