import QtQuick
import VORNELApp

/** Shows one screen of this module at a time, named by its file, or none. Every screen is given the model. */
Loader {
    id: loader

    required property AppModel model
    required property string screen

    property bool isComplete: false

    function load(): void {
        if (isComplete)
            setSource(screen, { model: model });
    }

    focus: true
    onActiveFocusChanged: keyboard.stop()
    onLoaded: {
        item.focus = true;
        if (!activeFocus)
            keyboard.restart();
    }
    Component.onCompleted: {
        isComplete = true;
        load();
    }
    onScreenChanged: load()

    Timer {
        id: keyboard

        interval: 200
        // A sheet of the former screen that was closing could not give it back.
        onTriggered: if (loader.Window.activeFocusItem === loader.Window.contentItem) loader.forceActiveFocus(Qt.OtherFocusReason)
    }
}
