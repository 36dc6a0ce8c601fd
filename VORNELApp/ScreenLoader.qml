import QtQuick
import VORNELApp

/** Shows one screen of this module at a time, named by its file, or none. Every screen is given the model. */
Loader {
    required property AppModel model
    required property string screen

    property bool isComplete: false

    function load(): void {
        if (isComplete)
            setSource(screen, { model: model });
    }

    focus: true
    onLoaded: item.focus = true
    Component.onCompleted: {
        isComplete = true;
        load();
    }
    onScreenChanged: load()
}
