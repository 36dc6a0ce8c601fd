import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Tells why a text isn't saved whose skill was changed or removed elsewhere, and what can be done instead. */
Sheet {
    id: sheet

    enum Choice {
        Nothing,
        Comparison,
        Reloading,
        Replacement
    }

    required property OpenSkill skill

    /** What the user has chosen, which happens once the sheet is closed. */
    property int choice: StaleSheet.Nothing

    signal comparisonAsked
    signal replacementAsked

    function choose(choice: int): void {
        sheet.choice = choice;
        close();
    }

    firstFocus: closing
    implicitWidth: Math.min(800, parent.width - 2 * Metrics.page)
    title: "Le texte n’est pas enregistré"
    onAboutToShow: choice = StaleSheet.Nothing
    onClosed: {
        switch (choice) {
        case StaleSheet.Comparison:
            return comparisonAsked();
        case StaleSheet.Reloading:
            return skill.reload();
        case StaleSheet.Replacement:
            return replacementAsked();
        }
    }

    Connections {
        function onChanged() {
            if (sheet.skill.draft.standing === SkillDraft.Current)
                sheet.close();
        }

        target: sheet.skill.draft
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

            skill: sheet.skill
            onComparisonAsked: sheet.choose(StaleSheet.Comparison)
            onReloadAsked: sheet.choose(StaleSheet.Reloading)
            onReplacementAsked: sheet.choose(StaleSheet.Replacement)
        }
    }
}
