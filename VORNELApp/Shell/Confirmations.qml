pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/**
 * What has just succeeded, the newest last: each confirmation for 1.8 seconds from when it came, or for 6 with an offer to
 * take it back, and as long as that is held. There is room for two, of which the last may have an offer.
 */
Item {
    id: confirmations

    required property AppModel model

    readonly property int duration: 1800
    readonly property int offerDuration: 6000

    /** The user turns away from an offer that has the keyboard. */
    signal decided

    function show(): void {
        messages.append({ message: model.transientMessage, step: model.transientStep, isRedo: model.isRedoable });
    }
    function retire(index: int): void {
        if (index < 0) // it is on its way out
            return;
        messages.remove(index);
        if (messages.count === 0)
            model.clearTransientMessage();
    }

    implicitHeight: 3 * Metrics.controlHeight + 2 * Metrics.small
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

            required property int index
            required property string message
            required property string step

            required property bool isRedo

            /** Any other action ends the offer, and taking it does. */
            readonly property bool isOffer: step !== "" && step === confirmations.model.undoableStep

            action: step === "" ? "" : isRedo ? "Rétablir" : "Annuler"
            actionName: isRedo ? "Rétablir la dernière action (Ctrl+Y)" : "Annuler la dernière action (Ctrl+Z)"
            actionSymbol: isRedo ? "rotate-cw" : "undo-2"
            enabled: isOffer && !confirmations.model.isWorking
            maximumWidth: Metrics.sidebarWidth - 2 * confirmations.x
            text: message

            Keys.onEscapePressed: confirmations.decided()
            onActionAsked: {
                if (hasKeyboard)
                    confirmations.decided();
                isRedo ? confirmations.model.redo() : confirmations.model.undo();
            }
            onIsOfferChanged: if (!isOffer) confirmations.retire(index)

            Timer {
                interval: capsule.isOffer ? confirmations.offerDuration : confirmations.duration
                running: !capsule.isOffer || !(capsule.isHovered || capsule.hasKeyboard)
                onTriggered: confirmations.retire(capsule.index)
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
