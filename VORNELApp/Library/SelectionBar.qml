pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** How many skills are selected, and what can be done with them. */
Row {
    id: bar

    required property AppModel model
    required property SkillSelection selection
    required property CardPage page

    signal exportAsked
    signal propertiesAsked
    signal trashAsked

    readonly property bool isCompact: width < 600
    readonly property bool canAct: selection.count > 0 && !model.isWorking

    spacing: Metrics.small

    Accessible.name: "Sélection"
    Accessible.role: Accessible.ToolBar

    Label {
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.accent
        font: Typography.control
        text: bar.selection.countText
        width: Math.max(124, implicitWidth)
    }
    ActionButton {
        enabled: bar.page.skillCount > 0
        isCompact: bar.width < 710
        symbol: bar.selection.holdsAll ? "list-x" : "list-checks"
        text: bar.selection.holdsAll ? "Tout désélectionner" : "Tout sélectionner"
        onClicked: bar.selection.holdsAll ? bar.selection.selectNone() : bar.selection.selectAll()

        T.ToolTip.text: bar.page.skillCount + " au total"
    }
    ActionButton {
        enabled: bar.canAct
        isCompact: bar.isCompact
        symbol: "folder"
        text: "Déplacer"
        onClicked: {
            bar.selection.hold();
            categories.open();
        }

        CategoryMenu {
            id: categories

            model: bar.model
            y: -height - Metrics.tiny
            onChosen: id => bar.selection.assign(id)
        }
    }
    ActionButton {
        enabled: bar.canAct
        isCompact: bar.isCompact
        symbol: "sliders-horizontal"
        text: "Propriétés…"
        onClicked: bar.propertiesAsked()
    }
    ActionButton {
        enabled: bar.canAct
        isCompact: true
        symbol: "upload"
        text: "Exporter…"
        onClicked: bar.exportAsked()
    }
    ActionButton {
        enabled: bar.canAct
        isCompact: bar.isCompact
        role: ActionButton.Destructive
        symbol: "trash-2"
        text: "Supprimer"
        onClicked: bar.trashAsked()
    }
}
