pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The categories to choose from, the current one checked. */
ActionMenu {
    id: choices

    required property var categories
    property string currentID

    signal chosen(id: string)

    Instantiator {
        model: choices.categories
        onObjectAdded: (index, object) => choices.insertItem(index, object)
        onObjectRemoved: (index, object) => choices.removeItem(object)

        delegate: ActionMenuItem {
            required property skillCategory modelData

            checked: modelData.id === choices.currentID
            symbol: CategoryVisuals.symbol(modelData.id)
            symbolColor: CategoryVisuals.hue(modelData.colorHex)
            text: modelData.name
            onTriggered: choices.chosen(modelData.id)
        }
    }
}
