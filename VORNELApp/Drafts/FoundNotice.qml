import VORNELApp
import VORNELDesignSystem

/** Tells that an unsaved text was found, with which the editor goes on, and lets the user give it up. */
Notice {
    id: notice

    required property SkillDraft draft

    /** The notice goes, or the user turns from it. */
    signal decided

    /** Where it is, unless it is in the skill's text alone. */
    readonly property string files: {
        const paths = draft.files.paths;
        if (paths.length === 0)
            return "";
        return "\u00A0: " + (draft.isTextModified ? "SKILL.md, " : "") + paths.slice(0, 4).join(", ") + (paths.length > 4 ? "…" : "");
    }

    text: "Texte non enregistré du " + draft.foundMoment + " retrouvé" + files + (files.endsWith("…") ? "" : ".")
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
