import QtQuick
import VORNELApp
import VORNELDesignSystem

/** How many trashed skills are selected, and what can be done with them. */
ListFooter {
    id: bar

    required property AppModel model
    required property SkillSelection selection
    required property int shownCount

    signal restorationAsked
    signal deletionAsked

    readonly property bool canAct: selection.count > 0 && !model.isWorking

    Accessible.name: "Sélection"
    Accessible.role: Accessible.ToolBar

    Row {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.huge
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small

        Label {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.accent
            font: Typography.control
            text: bar.selection.countText
            width: Math.max(124, implicitWidth)
        }
        ActionButton {
            enabled: bar.shownCount > 0
            symbol: bar.selection.holdsAll ? "list-x" : "list-checks"
            text: bar.selection.holdsAll ? "Tout désélectionner" : "Tout sélectionner"
            onClicked: bar.selection.holdsAll ? bar.selection.selectNone() : bar.selection.selectAll()
        }
        ActionButton {
            enabled: bar.canAct
            symbol: "undo-2"
            text: "Restaurer"
            onClicked: bar.restorationAsked()
        }
        ActionButton {
            enabled: bar.canAct
            role: ActionButton.Destructive
            symbol: "trash-2"
            text: "Supprimer définitivement"
            onClicked: bar.deletionAsked()
        }
    }
}
