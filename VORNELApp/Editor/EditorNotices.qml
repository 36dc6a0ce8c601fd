import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What the user should know of the text that is edited, one below another. */
Column {
    id: notices

    required property OpenSkill skill
    readonly property SkillDraft draft: skill.draft

    /** Whether no operation runs. */
    required property bool canAct

    signal comparisonAsked
    signal handEditsAdopted
    signal replacementAsked

    /** A notice goes, and what has the keyboard in it; or the user turns from it. */
    signal decided

    spacing: Metrics.small

    StaleNotice {
        skill: notices.skill
        visible: notices.draft.standing !== SkillDraft.Current
        width: parent.width
        onComparisonAsked: notices.comparisonAsked()
        onEscaped: notices.decided()
        onReplacementAsked: notices.replacementAsked()
    }
    Notice {
        text: "Le dossier de cette compétence a été modifié en dehors de VORNEL."
        visible: notices.skill.isEditedByHand
        width: parent.width
        Keys.onEscapePressed: notices.decided()

        ActionButton {
            enabled: notices.canAct
            symbol: "check"
            text: "Prendre en compte"

            Accessible.description: "En faire une révision, gardée dans l’historique"
            onClicked: {
                notices.handEditsAdopted();
                notices.decided();
            }
        }
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
