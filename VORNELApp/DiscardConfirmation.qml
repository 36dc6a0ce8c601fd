import VORNELDesignSystem

/** Asks before what was typed on a sheet is lost. */
ConfirmationDialog {
    acceptText: "Abandonner"
    isDestructive: true
    message: "Ce que vous avez saisi sera perdu."
    rejectText: "Continuer la saisie"
    title: "Abandonner la saisie\u00A0?"
}
