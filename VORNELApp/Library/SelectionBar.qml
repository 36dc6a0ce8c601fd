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

    readonly property real room: width - count.width
    readonly property bool isCompact: room < 470
    readonly property real roomForSymbols: 5 * (Metrics.controlHeight + Metrics.tiny)
    readonly property bool canAct: selection.count > 0 && !model.isWorking

    spacing: isCompact ? Metrics.tiny : Metrics.small

    Accessible.name: "Sélection"
    Accessible.role: Accessible.ToolBar

    Label {
        id: count

        anchors.verticalCenter: parent.verticalCenter
        color: Colors.accent
        font: Typography.control
        text: bar.selection.countText
        width: Math.min(Math.max(112, implicitWidth), bar.width - bar.roomForSymbols)
    }
    ActionButton {
        enabled: bar.page.skillCount > 0
        isCompact: bar.room < 630
        symbol: bar.selection.holdsAll ? "list-x" : "list-checks"
        text: bar.selection.holdsAll ? "Tout désélectionner" : "Tout sélectionner"
        onClicked: bar.selection.holdsAll ? bar.selection.selectNone() : bar.selection.selectAll()

        T.ToolTip.text: bar.page.skillCount + " au total"
    }
    ActionButton {
        enabled: bar.canAct
        isCompact: bar.isCompact
        leftPadding: isCompact ? 0 : Metrics.medium
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
        leftPadding: isCompact ? 0 : Metrics.medium
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
        leftPadding: isCompact ? 0 : Metrics.medium
        role: ActionButton.Destructive
        symbol: "trash-2"
        text: "Supprimer"
        onClicked: bar.trashAsked()
    }
}
