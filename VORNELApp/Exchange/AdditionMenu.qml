import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks whether a folder or archives are to be added, which no dialog shows together. */
ActionMenu {
    id: menu

    required property AppModel model

    readonly property DeferredItem dialogs: DeferredItem {
        file: "AdditionDialogs.qml"
        parent: menu.parent
        properties: ({ model: menu.model })
    }

    title: "Ajouter"

    ActionMenuItem {
        symbol: "folder"
        text: "Un dossier…"
        onSettled: {
            menu.dialogs.make();
            (menu.dialogs.item as AdditionDialogs).chooseFolder();
        }
    }
    ActionMenuItem {
        symbol: "archive"
        text: "Des archives…"
        onSettled: {
            menu.dialogs.make();
            (menu.dialogs.item as AdditionDialogs).chooseArchives();
        }
    }
}
