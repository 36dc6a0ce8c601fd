import QtQuick
import QtQuick.Templates as T

/** How much of a longer work is done. */
T.ProgressBar {
    id: bar

    implicitWidth: 240
    implicitHeight: 6

    background: Rectangle {
        color: Colors.raised
        radius: height / 2
    }
    contentItem: Item {
        Rectangle {
            color: Colors.accent
            height: parent.height
            radius: height / 2
            width: parent.width * bar.visualPosition

            Behavior on width {
                NumberAnimation {
                    duration: Motion.quick
                }
            }
        }
    }
}
