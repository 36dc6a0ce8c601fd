import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Tells why a text isn't saved whose skill was changed or removed elsewhere, and what can be done instead. */
Sheet {
    id: sheet

    required property SkillDraft draft

    /** What the user has chosen, which happens once the sheet is closed. */
    property var choice

    signal comparisonAsked
    signal reloadAsked
    signal replacementAsked

    function choose(choice: var): void {
        sheet.choice = choice;
        close();
    }

    firstFocus: closing
    implicitWidth: Math.min(800, parent.width - 2 * Metrics.page)
    title: "Le texte n’est pas enregistré"
    onAboutToShow: choice = undefined
    onClosed: {
        const chosen = choice;
        if (chosen !== undefined)
            chosen();
    }

    Connections {
        function onStandingChanged() {
            if (sheet.draft.standing === SkillDraft.Current)
                sheet.close();
        }

        target: sheet.draft
    }
    Label {
        bottomPadding: Metrics.small
        color: Colors.secondary
        lineHeight: 1.35
        text: actions.reason + (actions.isGone ? "" : " L’enregistrer remplacerait une version que vous n’avez pas vue.")
        width: parent.width
        wrapMode: Text.Wrap
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.small

        ActionButton {
            id: closing

            text: "Fermer"
            onClicked: sheet.close()
        }
        StaleActions {
            id: actions

            draft: sheet.draft
            onComparisonAsked: sheet.choose(() => sheet.comparisonAsked())
            onReloadAsked: sheet.choose(() => sheet.reloadAsked())
            onReplacementAsked: sheet.choose(() => sheet.replacementAsked())
        }
    }
}
