pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The categories to choose one from, the current one checked. */
ActionMenu {
    id: choices

    required property AppModel model
    property string currentID

    signal chosen(id: string)

    Instantiator {
        model: CategoryListModel {
            model: choices.model
        }

        ActionMenuItem {
            required property categoryEntry record

            isChosen: record.category.id === choices.currentID
            symbol: CategoryVisuals.symbol(record.category.id)
            symbolColor: CategoryVisuals.hue(record.category.colorHex)
            text: record.category.name
            onTriggered: choices.chosen(record.category.id)
        }

        onObjectAdded: (index, object) => choices.insertItem(index, object)
        onObjectRemoved: (index, object) => choices.removeItem(object)
    }
}
