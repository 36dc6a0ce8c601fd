pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** The categories of the catalog. Up, Down, Home and End move, Enter chooses, Del asks to delete. */
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
    Keys.onPressed: event => {
        const ends = { [Qt.Key_Home]: 0, [Qt.Key_End]: count - 1 };
        event.accepted = event.key in ends;
        if (event.accepted)
            currentIndex = ends[event.key];
    }

    delegate: CategoryRow {
        width: ListView.view.width - (ListView.view.interactive ? Metrics.medium : 0)
        onClicked: list.chosen(record.category)
        onDeletionAsked: list.deletionAsked(record.category)
    }
}
