import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The commands for a copy that was set aside. */
ActionMenu {
    id: menu

    required property AppModel model
    property skillEntry record

    signal showingAsked(record: skillEntry)
    signal restorationAsked(record: skillEntry)
    signal revisionAsked(record: skillEntry)
    signal deletionAsked(record: skillEntry)

    function openFor(record: skillEntry, anchor: Item, place: point): void {
        menu.record = record;
        popup(anchor, place.x, place.y);
    }

    title: record.skill.displayName

    ActionMenuItem {
        enabled: menu.record.failure === ""
        symbol: "file-text"
        text: "Afficher"
        onSettled: menu.showingAsked(menu.record)
    }
    ActionMenuItem {
        enabled: menu.record.canAdopt && !menu.model.isWorking
        symbol: "undo-2"
        text: "Revenir à cette version"
        onSettled: menu.revisionAsked(menu.record)
    }
    ActionMenuItem {
        enabled: menu.record.failure === "" && !menu.model.isWorking
        implicitWidth: 320
        symbol: "plus"
        text: "Restaurer comme nouvelle compétence…"
        onSettled: menu.restorationAsked(menu.record)
    }
    ActionMenuItem {
        enabled: !menu.model.isWorking
        isDestructive: true
        symbol: "trash-2"
        text: "Supprimer définitivement…"
        onSettled: menu.deletionAsked(menu.record)
    }
}
