import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The commands for a file or folder of a skill or, without one, for the skill's own folder. */
ActionMenu {
    id: menu

    required property FileTreeActions actions

    property string path
    property bool isFolder: true

    /** Whether it is one that stays where it is. */
    readonly property bool isFixed: path === "" || actions.isFixed(path)

    /** Where something new goes. */
    readonly property string folder: isFolder ? path : actions.folderOf(path)

    function openFor(path: string, isFolder: bool, anchor: Item, place: point): void {
        menu.path = path;
        menu.isFolder = isFolder;
        popup(anchor, place.x, place.y);
    }

    implicitWidth: 280
    title: path === "" ? "Fichiers de la compétence" : path

    ActionMenuItem {
        enabled: menu.actions.canChange
        symbol: "file-plus"
        text: "Nouveau fichier…"
        onSettled: menu.actions.askForFile(menu.folder)
    }
    ActionMenuItem {
        enabled: menu.actions.canChange
        symbol: "folder-plus"
        text: "Nouveau dossier…"
        onSettled: menu.actions.askForFolder(menu.folder)
    }
    ActionMenuItem {
        enabled: menu.actions.canChange && !menu.isFixed
        symbol: "pencil"
        text: "Renommer ou déplacer…"
        onSettled: menu.actions.askForName(menu.path, menu.isFolder)
    }
    ActionMenuItem {
        enabled: menu.path !== ""
        symbol: "copy"
        text: "Copier"
        onTriggered: menu.actions.copy(menu.path)
    }
    ActionMenuItem {
        enabled: menu.actions.canChange
        symbol: "clipboard-paste"
        text: "Coller"
        onSettled: menu.actions.paste(menu.folder)
    }
    ActionMenuItem {
        symbol: "link"
        text: "Copier le chemin"
        onTriggered: menu.actions.copyPath(menu.path)
    }
    ActionMenuItem {
        enabled: menu.path !== "" && !menu.isFolder && menu.path !== "vornel.json" // which only VORNEL writes
        symbol: "external-link"
        text: "Ouvrir avec…"
        onTriggered: menu.actions.openWith(menu.path)
    }
    ActionMenuItem {
        symbol: "folder-open"
        text: "Ouvrir le dossier"
        onTriggered: menu.actions.openFolder(menu.folder)
    }
    ActionMenuItem {
        enabled: menu.actions.canChange && !menu.isFixed
        isDestructive: true
        symbol: "trash-2"
        text: "Supprimer…"
        onSettled: menu.actions.askToRemove(menu.path, menu.isFolder)
    }
}
