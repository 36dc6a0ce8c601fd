import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What the user should know of the text that is edited, one below another. */
Column {
    id: notices

    required property SkillDraft draft

    signal comparisonAsked
    signal replacementAsked

    /** A notice goes, and what has the keyboard in it; or the user turns from it. */
    signal decided

    /** Has it read out that the skill isn't what was opened. */
    function bringForward(): void {
        stale.forceActiveFocus();
    }

    spacing: Metrics.small

    StaleNotice {
        id: stale

        draft: notices.draft
        visible: draft.standing !== SkillDraft.Current
        width: parent.width
        onComparisonAsked: notices.comparisonAsked()
        onDecided: notices.decided()
        onEscaped: notices.decided()
        onReplacementAsked: notices.replacementAsked()
    }
    FoundNotice {
        draft: notices.draft
        visible: draft.standing === SkillDraft.Current && draft.foundMoment !== ""
        width: parent.width
        onDecided: notices.decided()
    }
    Notice {
        text: "VORNEL n’a pas pu lire le texte non enregistré de cette compétence. S’il y en a un, il reste gardé. " + notices.draft.lookFailure
        visible: notices.draft.lookFailure !== ""
        width: parent.width
    }
    Notice {
        text: "Ce texte serait perdu si VORNEL s’arrêtait avant que vous l’enregistriez. " + notices.draft.keepingFailure
        visible: notices.draft.keepingFailure !== ""
        width: parent.width
    }
}
