import VORNELApp
import VORNELDesignSystem

/** Tells that an unsaved text was found, with which the editor goes on, and lets the user give it up. */
Notice {
    id: notice

    required property SkillDraft draft

    /** The notice goes, or the user turns from it. */
    signal decided

    text: "Texte non enregistré du " + draft.foundMoment + " retrouvé."
    Keys.onEscapePressed: decided()

    ActionButton {
        text: "Garder"
        onClicked: {
            notice.draft.keepFound();
            notice.decided();
        }
    }
    ActionButton {
        text: "Abandonner"
        onClicked: {
            notice.draft.discard();
            notice.decided();
        }
    }
}
