import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What the user is asked about the skill that is edited, each question in a sheet. */
Item {
    id: questions

    required property AppModel model
    required property PropertyForm properties

    readonly property OpenSkill skill: model.openSkill
    readonly property var detail: model.selectedSkill

    /** The copies are settled: the keyboard is free. */
    signal ended

    /** The text, or the properties, are to be seen. */
    signal textAsked
    signal propertiesAsked

    /** The skill is to go to the trash. */
    signal trashed

    function compareTexts(): void {
        comparison.make();
        (comparison.item as TextComparisonSheet).compare();
    }
    function askForDuplicate(): void {
        duplication.make();
        (duplication.item as DuplicationSheet).ask(detail.manifest.id, detail.manifest.slug, detail.manifest.displayName);
    }
    function askToReplace(): void {
        replacement.open();
    }
    function askToTrash(): void {
        confirmation.open();
    }

    Connections {
        function onRefused() {
            refusal.open();
        }

        target: questions.skill
    }
    DifferencesSheet {
        id: differences

        model: questions.model
        replacement: questions.skill.replacement
        onClosed: questions.ended()
    }
    StaleSheet {
        id: refusal

        skill: questions.skill
        onComparisonAsked: questions.compareTexts()
        onReplacementAsked: replacement.open()
    }
    DeferredItem {
        id: comparison

        file: "TextComparisonSheet.qml"
        properties: ({ model: questions.model })
    }
    DeferredItem {
        id: duplication

        file: "DuplicationSheet.qml"
        properties: ({ model: questions.model })
    }
    UnsavedSheet {
        model: questions.model
        properties: questions.properties
        onPropertiesRefused: questions.propertiesAsked()
    }
    ConfirmationDialog {
        id: replacement

        acceptText: "Garder mon texte"
        message: "Votre texte remplace celui du disque, qui reste dans l’historique de la compétence."
        title: "Remplacer le texte du disque\u00A0?"
        onAccepted: questions.skill.overrule()
        onClosed: if (isAccepted && !differences.isUsed) questions.textAsked() // as the notice goes
    }
    ConfirmationDialog {
        id: confirmation

        acceptText: "Placer dans la corbeille"
        isDestructive: true
        message: "Vous pourrez restaurer cette compétence depuis la corbeille."
            + (questions.skill.draft.isModified || questions.properties.isModified ? "\n\nLes modifications non enregistrées seront perdues." : "")
        title: "Placer « " + (questions.detail?.manifest.displayName ?? "") + " » dans la corbeille ?"
        onAccepted: questions.trashed()
    }
}
