import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What can be done with a text whose skill was changed or removed elsewhere, and what the user reads of that. */
Row {
    id: actions

    required property OpenSkill skill
    readonly property SkillDraft draft: skill.draft

    readonly property bool isGone: draft.standing === SkillDraft.Gone
    readonly property string reason: {
        if (isGone)
            return "Cette compétence n’est plus dans la bibliothèque. Votre texte est encore ici.";
        if (draft.foundMoment !== "")
            return "Texte non enregistré du " + draft.foundMoment + " retrouvé. La compétence a été modifiée depuis.";
        return "Cette compétence a été modifiée ailleurs depuis son ouverture. Votre texte est encore ici.";
    }

    signal comparisonAsked
    signal reloadAsked
    signal replacementAsked

    spacing: Metrics.small

    ActionButton {
        symbol: "file-text"
        text: "Comparer"
        visible: !actions.isGone
        onClicked: actions.comparisonAsked()
    }
    ActionButton {
        symbol: "copy"
        text: "Copier le texte"
        onClicked: actions.draft.copy()
    }
    ActionButton {
        symbol: "rotate-cw"
        text: "Recharger"
        visible: !actions.isGone
        onClicked: actions.reloadAsked()
    }
    ActionButton {
        symbol: "save"
        text: "Garder mon texte"
        visible: !actions.isGone
        onClicked: actions.replacementAsked()
    }
}
