import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The menu of a list's active skills, and the questions and sheets that its commands lead to. */
Item {
    id: actions

    required property AppModel model
    required property SkillSelection selection
    property alias canSelect: menu.canSelect
    readonly property alias menu: menu
    readonly property alias synchronization: synchronization

    /** A sheet, a question or a menu has closed. */
    signal closed

    /** Opens the properties of the held skills. */
    function askForProperties(): void {
        if (model.isWorking)
            return;
        propertySheet.make();
        (propertySheet.item as SelectionPropertiesSheet).ask();
    }
    /** Asks about the held skills. */
    function askToTrash(): void {
        if (!model.isWorking)
            confirmation.ask();
    }

    SkillMenu {
        id: menu

        model: actions.model
        selection: actions.selection
        onClosed: actions.closed()
        onDuplicateAsked: {
            duplication.make();
            (duplication.item as DuplicationSheet).ask(skill.id, skill.slug, skill.displayName);
        }
        onPropertiesAsked: actions.askForProperties()
        onSynchronizationAsked: synchronization.synchronize(actions.selection.ids())
        onTrashAsked: actions.askToTrash()
    }
    DeferredItem {
        id: propertySheet

        file: "SelectionPropertiesSheet.qml"
        properties: ({ model: actions.model, selection: actions.selection })
    }
    Connections {
        function onClosed() {
            actions.closed();
        }

        ignoreUnknownSignals: true
        target: propertySheet.item
    }
    DeferredItem {
        id: duplication

        file: "DuplicationSheet.qml"
        properties: ({ model: actions.model })
    }
    Connections {
        function onClosed() {
            actions.closed();
        }

        ignoreUnknownSignals: true
        target: duplication.item
    }
    SkillSynchronization {
        id: synchronization

        model: actions.model
        onClosed: actions.closed()
    }
    TrashSkillsQuestion {
        id: confirmation

        selection: actions.selection
        onClosed: actions.closed()
    }
}
