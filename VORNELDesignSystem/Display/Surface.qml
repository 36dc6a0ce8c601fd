import QtQuick

/** A card on the window's canvas. */
Rectangle {
    border.color: Colors.line
    border.width: Metrics.hairline
    color: Colors.surface
    radius: Metrics.cardRadius
}
