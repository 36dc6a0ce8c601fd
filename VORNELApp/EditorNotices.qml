import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What the user should know of the text that is edited, one below another. */
Column {
    id: notices

    required property SkillDraft draft

    signal comparisonAsked

    /** A notice goes, and what has the keyboard in it. */
    signal decided

    spacing: Metrics.small

    StaleNotice {
        draft: notices.draft
        visible: draft.standing !== SkillDraft.Current
        width: parent.width
        onComparisonAsked: notices.comparisonAsked()
        onDecided: notices.decided()
    }
    FoundNotice {
        draft: notices.draft
        visible: draft.standing === SkillDraft.Current && draft.foundMoment !== ""
        width: parent.width
        onDecided: notices.decided()
    }
    EditorNotice {
        text: "Ce texte serait perdu si VORNEL s’arrêtait avant que vous l’enregistriez. " + notices.draft.keepingFailure
        visible: notices.draft.keepingFailure !== ""
        width: parent.width
    }
}
