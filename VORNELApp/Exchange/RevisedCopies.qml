import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Tells which edits of assistants the next revisions of skills would replace. Without any, nothing. */
SymbolLabel {
    id: notice

    required property AppModel model

    readonly property var ids: model.addition.revisedIDs
    readonly property int edited: survey.editedCopies + survey.unexplainedCopies

    color: Colors.warning
    font: Typography.body
    symbol: "triangle-alert"
    text: {
        if (!survey.sawEveryCopy)
            return "Les copies de vos assistants n’ont pas toutes pu être comparées.";
        return edited === 1 ? "1 copie modifiée par un assistant serait remplacée, et gardée dans l’historique."
                            : edited + " copies modifiées par un assistant seraient remplacées, et gardées dans l’historique.";
    }
    visible: ids.length > 0 && !survey.isRunning && (edited > 0 || !survey.sawEveryCopy)
    Component.onCompleted: survey.begin(ids)
    onIdsChanged: survey.begin(ids)

    Accessible.name: text
    Accessible.role: Accessible.StaticText

    CopySurvey {
        id: survey

        model: notice.model
    }
}
