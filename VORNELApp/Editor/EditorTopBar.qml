import QtQuick
import QtQuick.Layouts
import VORNELApp
import VORNELDesignSystem

/** The way back, the name of the skill, and what can be done with it. */
RowLayout {
    id: bar

    required property AppModel model

    readonly property OpenSkill skill: model.openSkill

    /** Whether there are edits of the properties that aren't saved. */
    required property bool arePropertiesModified

    signal duplicateAsked
    signal historyAsked
    signal propertiesAsked
    signal saveAsked
    signal trashAsked

    spacing: Metrics.medium

    ActionButton {
        symbol: "chevron-left"
        text: "Bibliothèque"

        Accessible.name: "Retour à la bibliothèque"
        onClicked: bar.model.departure.leave(Departure.ToList)
    }
    Label {
        Layout.fillWidth: true
        Layout.leftMargin: Metrics.small
        font: Typography.title
        text: bar.model.selectedSkill?.manifest.displayName ?? ""
    }
    ActionButton {
        isCompact: bar.width < Metrics.roomForTexts
        symbol: "sliders-horizontal"
        symbolColor: bar.arePropertiesModified ? Colors.warning : foreground
        text: "Propriétés"

        Accessible.description: bar.arePropertiesModified ? "modifiées, non enregistrées" : ""
        onClicked: bar.propertiesAsked()
    }
    ActionButton {
        isCompact: bar.width < Metrics.roomForTexts
        symbol: "history"
        text: "Historique"
        onClicked: bar.historyAsked()
    }
    ActionButton {
        enabled: !bar.model.isWorking
        isCompact: bar.width < 1040 // the toolbar above has it in words, too
        symbol: "folder-sync"
        text: "Synchroniser"
        onClicked: bar.skill.synchronize()
    }
    ActionButton {
        enabled: !bar.skill.draft.isSaved && bar.skill.state !== OpenSkill.Saving && !bar.model.isWorking
        role: ActionButton.Primary
        symbol: "save"
        text: "Enregistrer"
        onClicked: bar.saveAsked()
    }
    ActionButton {
        id: more

        isCompact: true
        symbol: "ellipsis"
        text: "Plus d’actions"
        onClicked: menu.popup(more, more.width - menu.width, more.height + Metrics.tiny)

        ActionMenu {
            id: menu

            ActionMenuItem {
                enabled: !bar.model.isWorking
                symbol: "copy-plus"
                text: "Dupliquer…"
                onSettled: bar.duplicateAsked()
            }
            ActionMenuItem {
                enabled: !bar.model.isWorking
                isDestructive: true
                symbol: "trash-2"
                text: "Placer dans la corbeille"
                onSettled: bar.trashAsked()
            }
        }
    }
}
