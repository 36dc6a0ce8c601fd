import QtQuick
import VORNELApp

/** The skills of which a copy isn't as it should be. */
SkillList {
    id: attention

    required property AppModel model

    emptySymbol: "check"
    emptyTitle: "Tout est synchronisé"
    title: "À réparer"
    onChosen: id => model.selectSkill(id)

    skills: SkillListModel {
        destination: AppStates.Destination.needsAttention
        model: attention.model
    }
}
