import QtQuick
import VORNELApp

/** The library. It is made while the window already draws, and answers, without it. */
FocusScope {
    id: view

    required property AppModel model

    signal creationAsked

    function enterResults(): void {
        screen.item?.enterResults(); // whose type, if named, would be read before the first frame
    }

    Connections {
        function onAfterAnimating() {
            start.start();
        }

        enabled: screen.item === null
        target: view.Window.window
    }
    Timer {
        id: start

        interval: 0 // once the frame is under way
        onTriggered: screen.make()
    }
    Connections {
        function onCreationAsked() {
            view.creationAsked();
        }

        ignoreUnknownSignals: true
        target: screen.item
    }
    DeferredItem {
        id: screen

        anchors.fill: parent
        file: "LibraryScreen.qml"
        focus: true
        properties: ({ model: view.model })
        visible: true
        onLoaded: item.focus = true
    }
}
