import VORNELApp

/** The last failure of the model, and the way to where it can be mended, if there is one. */
ErrorPanel {
    id: failure

    required property AppModel model

    /** Whether the user is on the way to where it can be mended. */
    property bool isRemedying: false

    /** The user has dealt with it, and the keyboard can go back to the screen. */
    signal settled

    remedy: model.isSynchronizationIncomplete && model.selectedDestination !== AppStates.Destination.needsAttention ? "À réparer" : ""
    text: model.errorMessage
    onDismissed: {
        model.clearError();
        settled();
    }
    onRemedied: {
        isRemedying = true;
        model.departure.leaveFor(AppStates.Destination.needsAttention);
    }

    Connections {
        function onIsPendingChanged() {
            if (!failure.model.departure.isPending) // the user stays
                failure.isRemedying = false;
        }

        function onLeft(exit: int) {
            if (!failure.isRemedying || exit !== Departure.ToDestination)
                return;
            failure.isRemedying = false;
            failure.model.clearError();
            failure.settled();
        }

        target: failure.model.departure
    }
}
