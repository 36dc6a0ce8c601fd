import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The application's window, shown by whoever places it. Closing it waits for what is being done, and stays if that has failed. */
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
            if (window.model.errorMessage === "")
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
    Rectangle {
        anchors.fill: parent
        color: Colors.scrim
        visible: window.isClosing

        MouseArea {
            anchors.fill: parent
        }
        Surface {
            anchors.centerIn: parent
            height: farewell.height + 2 * Metrics.huge
            width: farewell.width

            StateView {
                id: farewell

                anchors.verticalCenter: parent.verticalCenter
                line: "VORNEL termine l’opération en cours."
                title: "Fermeture"
                width: 400
            }
        }
    }
}
