pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The categories of the catalog. Enter chooses, Del asks to delete. */
RowList {
    id: list

    required property AppModel appModel

    signal chosen(category: skillCategory)
    signal deletionAsked(category: skillCategory)

    interactive: contentHeight > height
    model: CategoryListModel {
        model: list.appModel
    }
    name: "Catégories"

    delegate: CategoryRow {
        width: ListView.view.width - (ListView.view.interactive ? Metrics.medium : 0)
        onClicked: list.chosen(record.category)
        onDeletionAsked: list.deletionAsked(record.category)
    }
}
