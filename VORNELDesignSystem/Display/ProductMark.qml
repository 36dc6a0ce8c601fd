pragma ComponentBehavior: Bound

import QtQuick

/** The product's sign: four tiles, the one that counts in the accent. */
Item {
    id: mark

    implicitWidth: 40
    implicitHeight: 40

    Accessible.ignored: true

    Repeater {
        model: 4

        Rectangle {
            required property int index

            readonly property bool isBright: index === 3

            border.color: isBright ? Colors.accent : Colors.secondary
            border.width: Math.max(1.5, mark.width / 20)
            color: isBright ? Colors.accent : "transparent"
            height: mark.height * 0.44
            radius: mark.width * 0.1
            width: mark.width * 0.44
            x: index % 2 === 0 ? 0 : mark.width - width
            y: index < 2 ? 0 : mark.height - height
        }
    }
}
