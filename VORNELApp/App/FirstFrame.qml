import QtQuick

/** Tells when the window has begun to draw a frame since this was made: what takes longer to make waits for it. */
Item {
    id: frame

    property bool isDrawn: false

    Connections {
        function onAfterAnimating() {
            pause.start();
        }

        enabled: !frame.isDrawn
        target: frame.Window.window
    }
    Timer {
        id: pause

        interval: 0 // once the frame is under way
        onTriggered: frame.isDrawn = true
    }
}
