import QtQuick
import QtQuick.Templates as T

/** Shows where a scrolled view is, and moves it. Hidden where there is nothing to scroll. */
T.ScrollBar {
    id: rail

    implicitWidth: Metrics.small
    implicitHeight: Metrics.small
    minimumSize: 0.08
    padding: 2
    policy: T.ScrollBar.AsNeeded
    visible: size < 1

    Accessible.ignored: true

    contentItem: Rectangle {
        color: rail.pressed || rail.hovered ? Colors.muted : Colors.line
        radius: width / 2
    }
}
