import VORNELApp
import VORNELDesignSystem

/** Tells that the skill was changed or removed elsewhere while it is edited here, and what can be done. */
Notice {
    id: notice

    required property SkillDraft draft

    readonly property bool isGone: draft.standing === SkillDraft.Gone

    signal comparisonAsked
    signal replacementAsked

    /** The notice is about to go. */
    signal decided

    text: {
        if (isGone)
            return "Cette compétence n’est plus dans la bibliothèque. Votre texte est encore ici.";
        if (draft.foundMoment !== "")
            return "Texte non enregistré du " + draft.foundMoment + " retrouvé. La compétence a changé depuis.";
        return "Cette compétence a changé ailleurs depuis son ouverture. Votre texte est encore ici.";
    }

    ActionButton {
        symbol: "file-text"
        text: "Comparer"
        visible: !notice.isGone
        onClicked: notice.comparisonAsked()
    }
    ActionButton {
        symbol: "copy"
        text: "Copier le texte"
        onClicked: notice.draft.copy()
    }
    ActionButton {
        symbol: "rotate-cw"
        text: "Recharger"
        visible: !notice.isGone
        onClicked: {
            notice.draft.reload();
            notice.decided();
        }
    }
    ActionButton {
        symbol: "save"
        text: "Garder mon texte"
        visible: !notice.isGone
        onClicked: notice.replacementAsked()
    }
}
