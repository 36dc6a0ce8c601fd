import VORNELApp

/** The last failure of the model, and the way to where it can be mended, if there is one. */
ErrorPanel {
    id: failure

    required property AppModel model

    /** The user is done with it: the keyboard is free. */
    signal settled

    remedy: model.isSynchronizationIncomplete && model.selectedDestination !== AppStates.Destination.needsAttention ? "À réparer" : ""
    text: model.errorMessage
    onDismissed: {
        model.clearError();
        settled();
    }
    onRemedied: model.departure.leave(() => {
        model.clearError();
        model.closeSkill();
        model.selectedDestination = AppStates.Destination.needsAttention;
        settled();
    })
}
