import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks before a copy that was set aside is brought back or deleted for good. */
Item {
    id: questions

    required property AppModel model
    required property SetAsideList copies

    /** What the question is about: later rows don't concern it. */
    property string copy
    property skillEntry record

    signal closed

    function choose(record: skillEntry): void {
        questions.record = record;
        copy = copies.copyID(record.id);
    }
    function askToRestore(record: skillEntry): void {
        if (model.isWorking)
            return;
        choose(record);
        naming.ask();
    }
    function askToRevert(record: skillEntry): void {
        if (model.isWorking)
            return;
        choose(record);
        revision.open();
    }
    function askToDelete(record: skillEntry): void {
        if (model.isWorking)
            return;
        choose(record);
        deletion.open();
    }

    SetAsideForm {
        id: copyForm

        model: questions.model
        onAccepted: naming.close()
    }
    SlugSheet {
        id: naming

        function ask(): void {
            copyForm.begin(questions.copy, questions.record.skill.slug);
            title = "Restaurer «\u00A0" + questions.record.skill.displayName + "\u00A0»";
            open();
        }

        acceptText: "Restaurer la copie"
        explanation: "Une nouvelle compétence est créée avec les fichiers de cette copie, et installée chez vos assistants."
        form: copyForm
        model: questions.model
        onClosed: questions.closed()
    }
    ConfirmationDialog {
        id: revision

        acceptText: "Revenir à cette version"
        message: "Elle devient la révision suivante, dans la bibliothèque et chez vos assistants. Ce qu’elle remplace reste dans l’historique."
        subject: questions.record.line + " · " + questions.record.date
        title: "Revenir à cette version de «\u00A0" + questions.record.skill.displayName + "\u00A0»\u00A0?"
        onAccepted: questions.model.revertToSetAside(questions.copy, questions.record.skill)
        onClosed: questions.closed()
    }
    ConfirmationDialog {
        id: deletion

        acceptText: "Supprimer définitivement"
        isDestructive: true
        message: "Cette action est irréversible."
        subject: questions.record.line + " · " + questions.record.date
        title: "Supprimer définitivement cette copie de «\u00A0" + questions.record.skill.displayName + "\u00A0»\u00A0?"
        onAccepted: questions.model.deleteSetAside(questions.copy)
        onClosed: questions.closed()
    }
}
