import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The application's window, shown by whoever places it. Closing it waits for what is being done, and stays if that has
    failed, unless the program has to end. */
Window {
    id: window

    required property AppModel model

    property bool isClosing: false

    color: Colors.canvas
    height: 800
    minimumHeight: 620
    minimumWidth: 960
    title: "VORNEL"
    width: 1240

    onClosing: event => {
        if (model.departure.isGuarded) {
            event.accepted = false;
            model.departure.leave(() => window.close());
            return;
        }
        model.batch.stop();
        event.accepted = !model.isBusy;
        isClosing = model.isBusy;
    }

    Connections {
        function onIsBusyChanged() {
            if (!window.isClosing || window.model.isBusy)
                return;
            window.isClosing = false;
            if (window.model.errorMessage === "" || window.model.departure.isForced)
                window.close();
        }

        target: window.model
    }
    RootView {
        anchors.fill: parent
        enabled: !window.isClosing
        focus: true
        model: window.model
    }
    DeferredItem {
        anchors.fill: parent
        file: "Farewell.qml"
        isWanted: window.isClosing
        properties: ({})
    }
}
