import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The library as it is used: the skills by category. Ctrl+A selects all that pass the filters, Esc ends the selection. */
FocusScope {
    id: library

    required property AppModel model

    signal creationAsked
    signal importAsked

    readonly property bool hasResults: page.skillCount > 0

    /** What is asked is about this skill or, where it is selected or none is given, about all that are selected. */
    function hold(id: var): SkillActions {
        if (id === undefined)
            selection.hold();
        else
            selection.hold(id);
        actions.make();
        return actions.item as SkillActions;
    }
    function askToTrash(id: var): void {
        hold(id).askToTrash();
    }
    function askForProperties(id: var): void {
        hold(id).askForProperties();
    }
    function enterResults(): void {
        grid.go(0, Qt.NoModifier);
    }
    function openCategories(isCreating: bool): void {
        categories.make();
        const sheet = categories.item as CategoriesView;
        sheet.open();
        if (isCreating)
            sheet.create();
    }

    Window.onActiveFocusItemChanged: {
        const item = Window.activeFocusItem;
        if (activeFocus && (item === library || !item.visible)) // what had the keyboard is gone
            grid.forceActiveFocus(Qt.OtherFocusReason);
    }

    Keys.onEscapePressed: event => {
        event.accepted = selection.isSelecting;
        selection.end();
    }
    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.SelectAll);
        if (event.accepted)
            selection.selectAll();
    }

    Shortcut {
        enabled: library.visible && !library.model.isWorking
        sequence: "Ctrl+O"
        onActivated: header.openAddition()
    }
    SkillSelection {
        id: selection

        model: library.model
    }
    CardPage {
        id: page

        columns: grid.columns
        model: library.model
        selection: selection
    }
    CategoryRail {
        id: rail

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.top: parent.top
        model: library.model
        selection: selection
        width: Metrics.railWidth
        onCreationAsked: library.openCategories(true)
        onManagementAsked: library.openCategories(false)
    }
    LibraryHeader {
        id: header

        anchors.left: rail.right
        anchors.right: parent.right
        anchors.top: parent.top
        model: library.model
        page: page
        selection: selection
        onCreationAsked: library.creationAsked()
    }
    SkillGrid {
        id: grid

        anchors.bottom: footer.top
        anchors.left: rail.right
        anchors.right: parent.right
        anchors.top: header.bottom
        focus: true
        model: library.model
        page: page
        selection: selection
        visible: library.hasResults
        onMenuAsked: (card, place) => {
            actions.make();
            (actions.item as SkillActions).menu.openFor(card.skill, card, place);
        }
        onPropertiesAsked: id => library.askForProperties(id)
        onTrashAsked: id => library.askToTrash(id)
    }
    DeferredItem {
        id: emptiness

        anchors.centerIn: grid
        file: "EmptyLibrary.qml"
        isWanted: !library.hasResults
        properties: ({ model: library.model, page: page })
        width: grid.width - 2 * Metrics.huge
    }
    Connections {
        function onCreationAsked() {
            library.creationAsked();
        }

        function onImportAsked() {
            library.importAsked();
        }

        target: emptiness.item as EmptyLibrary
    }
    LibraryFooter {
        id: footer

        anchors.bottom: parent.bottom
        anchors.left: rail.right
        anchors.right: parent.right
        model: library.model
        page: page
        selection: selection
        visible: library.hasResults || selection.isSelecting
        onExportAsked: {
            selection.hold();
            selection.exportHeld();
        }
        onPropertiesAsked: library.askForProperties()
        onTrashAsked: library.askToTrash()
    }
    DeferredItem {
        id: categories

        file: "CategoriesView.qml"
        properties: ({ model: library.model })
    }
    AdditionDrop {
        anchors.fill: parent
        model: library.model
    }
    DeferredItem {
        id: actions

        file: "SkillActions.qml"
        properties: ({ canSelect: true, model: library.model, selection: selection })
        visible: true
    }
}
