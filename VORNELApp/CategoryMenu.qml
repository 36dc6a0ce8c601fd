pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The categories to choose one from. */
ActionMenu {
    id: menu

    required property AppModel model

    signal chosen(id: string)

    Instantiator {
        model: CategoryListModel {
            model: menu.model
        }

        ActionMenuItem {
            required property categoryEntry record

            symbol: CategoryVisuals.symbol(record.category.id)
            symbolColor: CategoryVisuals.hue(record.category.colorHex)
            text: record.category.name
            onTriggered: menu.chosen(record.category.id)
        }

        onObjectAdded: (index, object) => menu.insertItem(index, object)
        onObjectRemoved: (index, object) => menu.removeItem(object)
    }
}
