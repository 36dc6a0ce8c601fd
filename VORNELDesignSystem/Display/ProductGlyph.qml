pragma ComponentBehavior: Bound

import QtQuick
import VORNELDesignSystem

/**
 * A large picture for a page: a symbol on a lit tile, amid the tiles of the product's sign. When `symbol`
 * changes, the tiles come together from where they were scattered.
 */
Item {
    id: glyph

    required property string symbol
    property real gathered: 1

    readonly property real tile: width * 0.2
    readonly property real step: (width - tile) / 3

    implicitWidth: 360
    implicitHeight: 360

    Accessible.ignored: true
    onSymbolChanged: arrival.restart()

    NumberAnimation {
        id: arrival

        duration: Motion.slow * 2
        easing.type: Motion.easing
        from: 0
        property: "gathered"
        target: glyph
        to: 1
    }

    Repeater {
        model: 16

        Rectangle {
            id: cell

            required property int index

            readonly property int column: index % 4
            readonly property int row: Math.floor(index / 4)
            readonly property bool isInner: column % 3 !== 0 && row % 3 !== 0

            /** How far the tile still is from its place. */
            readonly property real distance: (1 - glyph.gathered) * (0.4 + (index * 7 % 16) / 16)

            border.color: Colors.line
            border.width: Metrics.hairline
            color: (index * 5 + 3) % 7 === 0 ? Colors.raised : Colors.surface
            height: glyph.tile
            opacity: (isInner ? 0 : 0.35 + (index * 11 % 16) / 24) * glyph.gathered
            radius: Metrics.cardRadius
            width: glyph.tile
            x: column * glyph.step + (column - 1.5) * distance * 60
            y: row * glyph.step + (row - 1.5) * distance * 60
        }
    }
    Rectangle {
        anchors.centerIn: parent
        border.color: Colors.accent
        border.width: Metrics.focusWidth
        color: Colors.surface
        height: width
        radius: Metrics.cardRadius * 2
        scale: 0.92 + 0.08 * glyph.gathered
        width: glyph.step + glyph.tile

        Rectangle {
            anchors.fill: parent
            color: Colors.tint(Colors.accent)
            radius: parent.radius
        }
        Symbol {
            anchors.centerIn: parent
            color: Colors.accent
            height: width
            name: glyph.symbol
            opacity: glyph.gathered
            width: parent.width * 0.42
        }
    }
}
