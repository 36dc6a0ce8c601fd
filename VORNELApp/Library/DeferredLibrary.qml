import QtQuick
import VORNELApp

/** The library, made after a first frame: the window shows, and answers, without it. */
FocusScope {
    id: deferred

    required property AppModel model

    signal creationAsked
    signal importAsked

    function enterResults(): void {
        library.item?.enterResults(); // whose type, if named, would be read before the first frame
    }

    FirstFrame {
        onIsDrawnChanged: library.make()
    }
    Connections {
        function onCreationAsked() {
            deferred.creationAsked();
        }

        function onImportAsked() {
            deferred.importAsked();
        }

        ignoreUnknownSignals: true
        target: library.item
    }
    DeferredItem {
        id: library

        anchors.fill: parent
        file: "LibraryView.qml"
        focus: true
        properties: ({ model: deferred.model })
        visible: true
        onLoaded: item.focus = true
    }
}
