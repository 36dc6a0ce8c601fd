import QtQuick
import VORNELApp

/** Tells that the skill was changed or removed elsewhere while it is edited here, and what can be done. */
Notice {
    id: notice

    required property SkillDraft draft

    signal comparisonAsked
    signal reloadAsked
    signal replacementAsked

    /** The user turns from the notice to what lies below. */
    signal escaped

    text: actions.reason
    Keys.onEscapePressed: escaped()

    StaleActions {
        id: actions

        draft: notice.draft
        onComparisonAsked: notice.comparisonAsked()
        onReloadAsked: notice.reloadAsked()
        onReplacementAsked: notice.replacementAsked()
    }
}
