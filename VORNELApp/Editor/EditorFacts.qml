pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The category of the selected skill, and how its copies stand. */
Item {
    id: facts

    required property AppModel model

    readonly property CopyReplacement replacement: model.openSkill.replacement

    implicitHeight: Metrics.controlHeight

    CategoryPicker {
        model: facts.model
        width: chips.x - Metrics.large
    }
    Row {
        id: chips

        anchors.right: parent.right
        spacing: Metrics.small

        Repeater {
            model: facts.replacement.copies.targets

            TargetChip {
                required property copyInspection modelData

                inspection: modelData
                onClicked: facts.replacement.show()
            }
        }
    }
}
