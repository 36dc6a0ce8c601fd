import QtQuick
import VORNELApp

/** Tells that the skill was changed or removed elsewhere while it is edited here, and what can be done. */
Notice {
    id: notice

    required property OpenSkill skill

    signal comparisonAsked
    signal replacementAsked

    /** The user turns from the notice, which may go, to what lies below. */
    signal escaped

    text: actions.reason
    Keys.onEscapePressed: escaped()

    StaleActions {
        id: actions

        skill: notice.skill
        onComparisonAsked: notice.comparisonAsked()
        onReloadAsked: {
            notice.skill.reload();
            notice.escaped();
        }
        onReplacementAsked: notice.replacementAsked()
    }
}
