import VORNELApp
import VORNELDesignSystem

/** Asks before what was typed on a sheet is lost. Unless it is accepted, the action that would lose it is dropped. */
ConfirmationDialog {
    id: dialog

    required property Departure departure

    acceptText: "Abandonner"
    isDestructive: true
    message: "Ce que vous avez saisi sera perdu."
    rejectText: "Continuer la saisie"
    title: "Abandonner la saisie\u00A0?"
    onAboutToHide: {
        if (!isAccepted)
            departure.stay();
    }
}
