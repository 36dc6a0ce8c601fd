pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What has just succeeded, each confirmation for 1.8 seconds from when it came, the newest last. There is room for two. */
Item {
    id: confirmations

    required property AppModel model

    readonly property int duration: 1800

    function show(): void {
        messages.append({ message: model.transientMessage });
    }
    function retire(): void {
        messages.remove(0);
        if (messages.count === 0)
            model.clearTransientMessage();
    }

    implicitHeight: 2 * Metrics.controlHeight + Metrics.small
    Component.onCompleted: {
        if (model.transientMessage !== "")
            show();
    }

    Connections {
        function onConfirmed() {
            confirmations.show();
        }

        target: confirmations.model
    }
    ListModel {
        id: messages
    }
    ListView {
        id: stack

        anchors.fill: parent
        interactive: false
        model: messages
        spacing: Metrics.small

        add: Transition {
            NumberAnimation {
                duration: Motion.normal
                from: 0
                property: "opacity"
                to: 1
            }
            NumberAnimation {
                duration: Motion.normal
                easing.type: Motion.easing
                from: -Metrics.page
                property: "y"
            }
        }
        delegate: CapsuleMessage {
            id: capsule

            required property string message

            text: message

            Timer {
                interval: confirmations.duration
                running: true
                onTriggered: confirmations.retire()
            }
        }
        displaced: Transition {
            NumberAnimation {
                duration: Motion.quick
                property: "opacity"
                to: 1
            }
            NumberAnimation {
                duration: Motion.normal
                easing.type: Motion.easing
                property: "y"
            }
        }
        remove: Transition {
            NumberAnimation {
                duration: Motion.normal
                property: "opacity"
                to: 0
            }
        }
    }
}
