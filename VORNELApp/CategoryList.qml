pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** The categories of the catalog. Up and Down move, Enter chooses, Del asks to delete. */
ListView {
    id: list

    required property AppModel appModel

    signal chosen(category: skillCategory)
    signal deletionAsked(category: skillCategory)

    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    interactive: contentHeight > height
    keyNavigationEnabled: true
    model: CategoryListModel {
        model: list.appModel
    }

    T.ScrollBar.vertical: ScrollRail {}
    Accessible.name: "Catégories"
    Accessible.role: Accessible.List

    delegate: CategoryRow {
        width: ListView.view.width - (ListView.view.interactive ? Metrics.medium : 0)
        onClicked: list.chosen(record.category)
        onDeletionAsked: list.deletionAsked(record.category)
    }
}
