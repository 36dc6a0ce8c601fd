import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks before trashed skills are restored or deleted for good: one by itself, those selected, or all. */
Item {
    id: questions

    required property AppModel model
    required property SkillSelection selection

    /** How many skills the trash holds. */
    required property int total

    signal closed

    /** What the questions are about: one skill or, without one, those that the selection holds. */
    property var skill
    property int count
    property string names
    readonly property string name: skill?.displayName ?? ""

    /** Whether the look before a question is running. */
    readonly property alias isLooking: occupied.isAsking

    readonly property bool canAsk: !model.isWorking && !isLooking

    function askToRestore(skill: var): void {
        if (canAsk)
            occupied.askForRestored(choose(skill));
    }
    function askToDelete(skill: var): void {
        if (canAsk) {
            choose(skill);
            deletion.open();
        }
    }
    function askToEmpty(): void {
        if (canAsk)
            emptying.open();
    }
    function restore(): void {
        questions.skill ? model.restore(questions.skill.id) : selection.restore();
    }
    /**
     * Decides what the question is about: this skill or, where it is selected or none is given, all that are selected
     * now. What is selected later isn't concerned. Returns the slugs.
     */
    function choose(skill: var): var {
        if (skill === undefined)
            selection.hold();
        else
            selection.hold(skill.id);
        questions.skill = selection.only();
        questions.count = selection.heldCount();
        questions.names = questions.skill ? "" : selection.heldNames();
        return selection.slugs();
    }

    ConfirmationDialog {
        id: restoration

        acceptText: "Restaurer"
        subject: questions.names
        message: questions.skill ? questions.name + " sera à nouveau disponible dans vos assistants."
            : "Elles seront à nouveau disponibles dans vos assistants."
        title: questions.skill ? "Restaurer « " + questions.name + " » ?" : "Restaurer " + questions.count + " compétences\u00A0?"
        onAccepted: questions.restore()
        onClosed: questions.closed()
    }
    OccupiedQuestion {
        id: occupied

        acceptText: "Remplacer et restaurer"
        message: canAccept ? restoration.message : ""
        model: questions.model
        title: restoration.title
        onAccepted: questions.restore()
        onClosed: questions.closed()
        onUnoccupied: restoration.open()
    }
    ConfirmationDialog {
        id: deletion

        acceptText: "Supprimer définitivement"
        isDestructive: true
        subject: questions.names
        message: "Cette action est irréversible."
        title: questions.skill ? "Supprimer définitivement « " + questions.name + " » ?"
            : "Supprimer définitivement " + questions.count + " compétences\u00A0?"
        onAccepted: questions.skill ? questions.model.deletePermanently(questions.skill.id) : questions.selection.deletePermanently()
        onClosed: questions.closed()
    }
    ConfirmationDialog {
        id: emptying

        acceptText: "Tout supprimer"
        isDestructive: true
        message: questions.total === 1 ? "1 élément sera supprimé définitivement." : questions.total + " éléments seront supprimés définitivement."
        title: "Vider toute la corbeille ?"
        onAccepted: questions.model.emptyTrash()
        onClosed: questions.closed()
    }
}
