pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The commands for a skill of a list or, where it is one of several that are selected, for all of those. */
Item {
    id: chooser

    required property AppModel model
    required property SkillSelection selection

    /** Whether skills can be selected in the list. */
    property bool canSelect: false

    /** The inspections of the skill's copies that no synchronisation replaces, where the list knows of them. */
    property var unreadable: []

    /** Whether a copy of the skill holds what could be adopted, where the list knows of it. */
    property bool canAdopt: false

    property skillSummary skill
    property int number: 1
    property Item anchor
    property point place
    property bool isSelected: false

    readonly property bool isAlone: number === 1
    readonly property string all: isAlone ? "" : " les " + number

    signal closed
    signal duplicateAsked
    signal propertiesAsked
    signal synchronizationAsked
    signal trashAsked

    /** Opens at a place of the skill's card or row. */
    function openFor(skill: skillSummary, anchor: Item, place: point): void {
        selection.hold(skill.id);
        chooser.skill = skill;
        chooser.anchor = anchor;
        chooser.place = place;
        number = selection.heldCount();
        isSelected = selection.contains(skill.id);
        commands.popup(anchor, place.x, place.y);
    }
    function chooseCategory(): void {
        categories.popup(anchor, place.x, place.y);
    }

    ActionMenu {
        id: commands

        implicitWidth: chooser.unreadable.length > 0 ? 320 : 240
        title: chooser.isAlone ? chooser.skill.displayName : chooser.number + " compétences"
        onClosed: chooser.closed()

        ActionMenuItem {
            enabled: chooser.isAlone
            symbol: "file-text"
            text: "Ouvrir"
            onTriggered: chooser.model.selectSkill(chooser.skill.id)
        }
        ActionMenuItem {
            enabled: !chooser.model.isWorking
            symbol: "folder"
            text: "Déplacer" + chooser.all + "…"
            onSettled: chooser.chooseCategory()
        }
        ActionMenuItem {
            enabled: !chooser.model.isWorking
            symbol: "sliders-horizontal"
            text: chooser.isAlone ? "Propriétés…" : "Propriétés des " + chooser.number + "…"
            onSettled: chooser.propertiesAsked()
        }
        ActionMenuItem {
            enabled: chooser.isAlone && !chooser.model.isWorking
            symbol: "copy-plus"
            text: "Dupliquer…"
            onSettled: chooser.duplicateAsked()
        }
        ActionMenuItem {
            enabled: !chooser.model.isWorking
            symbol: "folder-sync"
            text: "Synchroniser" + chooser.all
            onSettled: chooser.synchronizationAsked()
        }
        ActionMenuItem {
            enabled: chooser.isAlone
            symbol: "folder-open"
            text: "Ouvrir le dossier"
            onTriggered: Qt.openUrlExternally(chooser.model.folder(chooser.skill.slug))
        }
        ActionMenuItem {
            enabled: chooser.isAlone
            symbol: "history"
            text: "Historique"
            onTriggered: {
                chooser.model.selectSkill(chooser.skill.id);
                chooser.model.history.open();
            }
        }
        ActionMenuItem {
            symbol: "copy"
            text: chooser.isAlone ? "Copier le chemin" : "Copier" + chooser.all + " chemins"
            onTriggered: chooser.selection.copyPaths()
        }
        ActionMenuItem {
            enabled: !chooser.model.isWorking
            symbol: "upload"
            text: "Exporter" + chooser.all + "…"
            onSettled: chooser.selection.exportHeld()
        }
        ActionMenuItem {
            enabled: !chooser.model.isWorking
            isDestructive: true
            symbol: "trash-2"
            text: "Placer" + chooser.all + " dans la corbeille"
            onSettled: chooser.trashAsked()
        }
        Instantiator {
            active: chooser.canAdopt

            ActionMenuItem {
                enabled: !chooser.model.isWorking
                symbol: "check"
                text: "Adopter…"
                onSettled: chooser.model.replacement.show(chooser.skill.id)
            }

            onObjectAdded: (index, object) => commands.insertItem(1, object)
            onObjectRemoved: (index, object) => commands.removeItem(object)
        }
        Instantiator {
            model: chooser.unreadable

            ActionMenuItem {
                required property copyInspection modelData

                enabled: !chooser.model.isWorking
                symbol: "archive"
                text: "Mettre de côté la copie de " + modelData.assistant
                onTriggered: chooser.model.setCopyAside(chooser.skill.id, modelData.target)
            }

            onObjectAdded: (index, object) => commands.insertItem(index + 1, object)
            onObjectRemoved: (index, object) => commands.removeItem(object)
        }
        Instantiator {
            model: chooser.unreadable

            ActionMenuItem {
                required property copyInspection modelData

                symbol: "folder-open"
                text: "Ouvrir le dossier de " + modelData.assistant
                onTriggered: Qt.openUrlExternally(modelData.folderURL)
            }

            onObjectAdded: (index, object) => commands.insertItem(index + 1, object)
            onObjectRemoved: (index, object) => commands.removeItem(object)
        }
        Instantiator {
            active: chooser.canSelect

            ActionMenuItem {
                symbol: chooser.isSelected ? "circle" : "circle-check"
                text: chooser.isSelected ? "Désélectionner" + chooser.all : "Sélectionner"
                onTriggered: chooser.isSelected && !chooser.isAlone ? chooser.selection.selectNone() : chooser.selection.toggle(chooser.skill.id)
            }

            onObjectAdded: (index, object) => commands.insertItem(1, object)
        }
    }
    CategoryMenu {
        id: categories

        currentID: chooser.isAlone ? chooser.skill.category : ""
        model: chooser.model
        onClosed: chooser.closed()
        onChosen: id => {
            if (id !== currentID)
                chooser.selection.assign(id);
        }
    }
}
