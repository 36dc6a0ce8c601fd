import QtQuick
import VORNELDesignSystem

/** A bar below a list. */
Rectangle {
    implicitHeight: visible ? 60 : 0
    color: Colors.canvas

    Rectangle {
        color: Colors.line
        height: Metrics.hairline
        width: parent.width
    }
}
