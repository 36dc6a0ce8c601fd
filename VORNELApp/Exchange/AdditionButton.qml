import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Adds skills that lie elsewhere on this machine. */
ActionButton {
    id: button

    required property AppModel model

    function openMenu(): ActionMenu {
        menu.make();
        const choices = menu.item as ActionMenu;
        choices.open();
        return choices;
    }

    /** Opens the menu for the keyboard, wherever that is. */
    function openForKeyboard(): void {
        const choices = openMenu();
        choices.currentIndex = choices.firstCommand();
    }

    enabled: !model.isWorking
    symbol: "folder-plus"
    text: "Ajouter…"
    onClicked: openMenu()

    DeferredItem {
        id: menu

        file: "AdditionMenu.qml"
        properties: ({ model: button.model })
        y: button.height + Metrics.tiny
    }
}
