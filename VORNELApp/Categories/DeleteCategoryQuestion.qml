import VORNELApp
import VORNELDesignSystem

/** Asks before the form's category is deleted. */
ConfirmationDialog {
    id: confirmation

    required property CategoryForm form

    readonly property int count: form.skillCount

    acceptText: "Supprimer"
    isDestructive: true
    message: count === 0 ? "Cette catégorie sera supprimée." : count + " compétences seront déplacées dans Autre."
    title: "Supprimer « " + form.original.name + " » ?"
    onAccepted: form.remove()
}
