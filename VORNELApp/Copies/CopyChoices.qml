pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What can be done where copies differ: keep what an assistant wrote, join what both did, or replace it. */
Column {
    id: choices

    required property AppModel model
    required property CopyReplacement replacement

    readonly property SkillCopies copies: replacement.copies
    readonly property bool isSaving: replacement.purpose === CopyReplacement.Saving
    readonly property bool canAct: !model.isWorking

    /** Whether there is anything to keep and the user came to put the copies right. */
    readonly property bool isKeeping: copies.hasEdits && replacement.purpose === CopyReplacement.Synchronising

    /** What becomes of the edits in the editor. */
    readonly property string fate: isSaving ? " Votre texte reste dans l’éditeur, sans être enregistré." : ""

    signal mergeAsked

    function other(name: string): string {
        return name === "Claude" ? "Codex" : "Claude";
    }

    /** What adopting a copy does, or some files of it. */
    function explanation(name: string, count: int): string {
        const what = count === 0 ? "Elle devient la prochaine révision" : count === 1 ? "Il passe dans la prochaine révision" : "Ils passent dans la prochaine révision";
        const history = copies.canMerge ? "Ce que " + other(name) + " a modifié reste dans l’historique." : "La version actuelle reste dans l’historique.";
        const receiver = copies.hasUnreadable ? ". La copie illisible de " + other(name) + " reste où elle est. " : ", que " + other(name) + " reçoit. ";
        return what + receiver + (count > 0 ? "Le reste de la copie de " + name + " ne change pas. " : "") + history + fate;
    }

    spacing: Metrics.small

    Repeater {
        model: choices.copies.targets

        CopyChoice {
            id: adoption

            required property copyInspection modelData

            readonly property int count: {
                void choices.copies.differences.chosenCount;
                return choices.copies.differences.chosen(modelData.target).length;
            }
            readonly property string what: count === 0 ? "la version" : count === 1 ? "1 fichier" : count + " fichiers"

            canAct: choices.canAct
            explanation: choices.explanation(modelData.assistant, count)
            isPrimary: choices.isKeeping && !choices.copies.canMerge
            symbol: "check"
            text: "Adopter " + what + " de " + modelData.assistant
            visible: modelData.isAdoptable && modelData.differences.length > 0
            width: choices.width
            onChosen: choices.model.adoption.adopt(choices.copies.skillID, modelData.target, choices.copies.differences.chosen(modelData.target))
        }
    }
    CopyChoice {
        canAct: choices.canAct
        explanation: "Réunit ce que Claude et Codex ont modifié. Là où ils se contredisent, vous choisissez avant que rien ne soit écrit." + choices.fate
        isPrimary: choices.isKeeping
        symbol: "list-checks"
        text: "Fusionner"
        visible: choices.copies.canMerge
        width: choices.width
        onChosen: choices.mergeAsked()
    }
    CopyChoice {
        canAct: choices.canAct
        explanation: {
            if (choices.copies.problem !== "")
                return "";
            return choices.replacement.newVersion + " remplace les copies. "
                + (choices.copies.hasEdits || choices.copies.hasFailed ? "Ce qu’elle remplace reste dans l’historique."
                : "Rien n’a été modifié chez les assistants\u00A0: c’est le dossier de VORNEL qui a changé depuis, et rien ne sera perdu.");
        }
        isPrimary: !choices.isKeeping && !choices.copies.hasUnreadable // which can't replace all
        symbol: ["save", "folder-sync", "undo-2", "file-text"][choices.replacement.purpose]
        text: choices.replacement.verb
        width: choices.width
        onChosen: choices.replacement.agree()
    }
}
