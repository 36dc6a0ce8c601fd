import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The commands for a trashed skill or, where it is one of several that are selected, for all of those. */
ActionMenu {
    id: menu

    required property AppModel model
    required property SkillSelection selection

    property skillSummary skill
    property int number: 1
    property bool isSelected: false

    readonly property bool isAlone: number === 1
    readonly property string all: isAlone ? "" : " les " + number

    signal restorationAsked(skill: skillSummary)
    signal deletionAsked(skill: skillSummary)

    function openFor(skill: skillSummary, anchor: Item, place: point): void {
        selection.hold(skill.id);
        menu.skill = skill;
        number = selection.heldCount();
        isSelected = selection.contains(skill.id);
        popup(anchor, place.x, place.y);
    }

    title: isAlone ? skill.displayName : number + " compétences"

    ActionMenuItem {
        enabled: !menu.model.isWorking
        symbol: "undo-2"
        text: "Restaurer" + menu.all
        onSettled: menu.restorationAsked(menu.skill)
    }
    ActionMenuItem {
        symbol: menu.isSelected ? "circle" : "circle-check"
        text: menu.isSelected ? "Désélectionner" + menu.all : "Sélectionner"
        onTriggered: menu.isSelected && !menu.isAlone ? menu.selection.selectNone() : menu.selection.toggle(menu.skill.id)
    }
    ActionMenuItem {
        enabled: !menu.model.isWorking
        isDestructive: true
        symbol: "trash-2"
        text: menu.isAlone ? "Supprimer définitivement" : "Supprimer" + menu.all + " définitivement"
        onSettled: menu.deletionAsked(menu.skill)
    }
}
