import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks before the skills that were surveyed are all synchronised, and tells what that replaces. */
ConfirmationDialog {
    id: question

    required property AttentionList skills

    readonly property int edited: skills.editedCopies
    readonly property string loss: {
        if (edited === 0 && !skills.sawEveryCopy)
            return "Vos assistants recevront la version de VORNEL. Certaines copies n’ont pas pu être comparées.";
        if (edited === 0)
            return (skills.surveyedCount === 1 ? "Aucune de ses copies" : "Aucune de leurs copies")
                + " n’a été modifiée par un assistant\u00A0: rien ne sera perdu.";
        const what = edited === 1 ? "1 copie modifiée par un assistant sera remplacée par la version de VORNEL, et gardée"
            : edited + " copies modifiées par un assistant seront remplacées par la version de VORNEL, et gardées";
        return what + " dans l’historique.";
    }

    acceptText: "Tout synchroniser"
    isDestructive: edited > 0
    message: loss
    title: skills.surveyedCount === 1 ? "Synchroniser 1 compétence\u00A0?"
        : "Synchroniser " + skills.surveyedCount + " compétences\u00A0?"
    onAccepted: skills.synchronizeSurveyed()
}
