import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks before the skills of a survey are all synchronised, and tells what that replaces. */
ConfirmationDialog {
    id: question

    required property CopySurvey survey

    readonly property int edited: survey.editedCopies
    readonly property string loss: {
        if (edited === 0 && !survey.sawEveryCopy)
            return "Vos assistants recevront la version de VORNEL. Certaines copies n’ont pas pu être comparées.";
        if (edited === 0)
            return (survey.count === 1 ? "Aucune de ses copies" : "Aucune de leurs copies")
                + " n’a été modifiée par un assistant\u00A0: rien ne sera perdu.";
        const what = edited === 1 ? "1 copie modifiée par un assistant sera remplacée par la version de VORNEL, et gardée"
            : edited + " copies modifiées par un assistant seront remplacées par la version de VORNEL, et gardées";
        return what + " dans l’historique.";
    }

    acceptText: "Tout synchroniser"
    isDestructive: edited > 0
    message: loss
    title: survey.count === 1 ? "Synchroniser 1 compétence\u00A0?"
        : "Synchroniser " + survey.count + " compétences\u00A0?"
    onAccepted: survey.synchronize()
}
