pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The categories to choose one from, the current one checked. */
ActionMenu {
    id: choices

    required property AppModel model
    property string currentID

    /** What stands for no category, which is an empty identifier; without a text, it can't be chosen. */
    property string noneText

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

        onObjectAdded: (index, object) => choices.insertItem(index + (choices.noneText === "" ? 0 : 1), object)
        onObjectRemoved: (index, object) => choices.removeItem(object)
    }
    Instantiator {
        active: choices.noneText !== ""

        ActionMenuItem {
            isChosen: choices.currentID === ""
            symbol: "circle"
            symbolColor: Colors.muted
            text: choices.noneText
            onTriggered: choices.chosen("")
        }

        onObjectAdded: (index, object) => choices.insertItem(0, object)
        onObjectRemoved: (index, object) => choices.removeItem(object)
    }
}
