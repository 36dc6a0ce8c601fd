import QtQuick
import VORNELDesignSystem

/** Shows that an operation runs, unless it is over before anyone would see it. Keeps its place when idle. */
Item {
    id: signal

    required property bool isBusy

    implicitWidth: glyph.width
    implicitHeight: glyph.height

    Accessible.ignored: !glyph.visible
    Accessible.name: "Opération en cours"
    Accessible.role: Accessible.Animation

    Timer {
        id: delay

        interval: Motion.normal
        running: signal.isBusy
    }
    BusyGlyph {
        id: glyph

        visible: signal.isBusy && !delay.running
    }
}
