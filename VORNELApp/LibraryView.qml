import QtQuick
import VORNELApp

/** The skills that pass the search. */
SkillList {
    id: library

    required property AppModel model

    emptySymbol: "layout-grid"
    emptyTitle: model.searchText === "" ? "Aucune compétence" : "Aucun résultat"
    title: "Compétences"
    onChosen: id => model.selectSkill(id)

    skills: SkillListModel {
        destination: AppStates.Destination.library
        model: library.model
    }
}
