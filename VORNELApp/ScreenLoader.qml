import QtQuick
import VORNELApp

/** Shows one screen of this module at a time, named by its file. Every screen is given the model. */
Loader {
    required property AppModel model
    required property string screen

    focus: true
    onLoaded: item.focus = true
    Component.onCompleted: setSource(screen, { model: model })
    onScreenChanged: {
        if (status !== Loader.Null)
            setSource(screen, { model: model });
    }
}
