import QtQuick
import VORNELApp

/** The skills that were thrown away. */
SkillList {
    id: trash

    required property AppModel model

    emptySymbol: "trash-2"
    emptyTitle: "La corbeille est vide"
    isChoosable: false
    title: "Corbeille"

    skills: SkillListModel {
        destination: AppStates.Destination.trash
        model: trash.model
    }
}
