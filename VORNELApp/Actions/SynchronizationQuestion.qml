import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks before the skills of a survey are all synchronised, and tells what that replaces. */
ConfirmationDialog {
    id: question

    required property CopySurvey survey

    readonly property bool areExplained: survey.unexplainedCopies === 0
    readonly property int kept: survey.editedCopies + survey.unexplainedCopies
    readonly property string loss: {
        if (kept === 0 && !survey.sawEveryCopy)
            return "Vos assistants recevront la version de VORNEL.";
        if (kept === 0)
            return (survey.count === 1 ? "Aucune de ses copies" : "Aucune de leurs copies")
                + " n’a été modifiée par un assistant\u00A0: rien ne sera perdu.";
        const what = kept === 1 ? "1 copie " + (areExplained ? "modifiée par un assistant" : "différente") + " sera remplacée"
            : kept + " copies " + (areExplained ? "modifiées par un assistant" : "différentes") + " seront remplacées";
        return what + " par la version de VORNEL, et " + (kept === 1 ? "gardée" : "gardées")
            + " dans l’historique. Pour adopter ce qu’un assistant a écrit, annulez et ouvrez la compétence.";
    }

    acceptText: "Tout synchroniser"
    isDestructive: kept > 0
    message: survey.sawEveryCopy ? loss : loss + " Certaines copies n’ont pas pu être comparées."
    title: survey.count === 1 ? "Synchroniser 1 compétence\u00A0?"
        : "Synchroniser " + survey.count + " compétences\u00A0?"
    onAccepted: survey.synchronize()
}
