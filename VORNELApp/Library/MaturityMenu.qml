pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The maturities to choose one from, or all of them. */
ActionMenu {
    id: menu

    required property AppModel model
    required property var maturityTexts

    title: "Maturité"

    Label {
        color: Colors.secondary
        font: Typography.small
        height: Metrics.controlHeight
        leftPadding: Metrics.medium
        text: menu.title
        verticalAlignment: Text.AlignVCenter
    }
    ActionMenuItem {
        isChosen: menu.model.selectedMaturity === undefined
        text: "Tous les états"
        onTriggered: menu.model.selectedMaturity = undefined
    }
    Instantiator {
        model: menu.maturityTexts

        ActionMenuItem {
            required property int index
            required property string modelData

            isChosen: menu.model.selectedMaturity === index
            text: modelData
            onTriggered: menu.model.selectedMaturity = index
        }

        onObjectAdded: (index, object) => menu.insertItem(index + 2, object)
        onObjectRemoved: (index, object) => menu.removeItem(object)
    }
}
