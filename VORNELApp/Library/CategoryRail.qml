pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The categories: each filters the library, and takes the skills that are dropped on it. */
Item {
    id: rail

    required property AppModel model
    required property SkillSelection selection

    /** The category under a drag; empty without one. */
    property string dropTargetID

    signal managementAsked
    signal creationAsked

    Rectangle {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.top: parent.top
        color: Colors.line
        width: Metrics.hairline
    }
    Label {
        id: heading

        anchors.left: parent.left
        anchors.leftMargin: Metrics.huge
        anchors.top: parent.top
        anchors.topMargin: Metrics.huge + Metrics.small
        color: Colors.secondary
        font: Typography.label
        text: "CATÉGORIES"
    }
    RowList {
        id: view

        anchors.bottom: actions.top
        anchors.bottomMargin: Metrics.small
        anchors.left: parent.left
        anchors.leftMargin: Metrics.medium
        anchors.right: parent.right
        anchors.rightMargin: Metrics.tiny
        anchors.top: heading.bottom
        anchors.topMargin: Metrics.medium
        name: "Catégories"
        spacing: 2

        delegate: CategoryRailEntry {
            id: entry

            isChosen: rail.model.selectedCategory === record.category.id
            isDropTarget: record.category.id !== "" && rail.dropTargetID === record.category.id
            width: view.width - Metrics.small
            onClicked: rail.model.selectedCategory = record.category.id

            DropArea {
                anchors.fill: parent
                enabled: entry.record.category.id !== "" && !rail.model.isWorking
                keys: ["text/plain"]
                onDropped: drop => {
                    rail.dropTargetID = "";
                    drop.accept();
                    rail.selection.drop(drop.text, entry.record.category.id);
                }
                onEntered: drag => {
                    drag.accepted = rail.selection.accepts(drag.text);
                    if (drag.accepted)
                        rail.dropTargetID = entry.record.category.id;
                }
                onExited: rail.dropTargetID = ""
            }
        }
        model: CategoryListModel {
            beginsWithAll: true
            model: rail.model
        }
    }
    Column {
        id: actions

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.small
        anchors.left: parent.left
        anchors.leftMargin: Metrics.medium
        anchors.right: parent.right
        anchors.rightMargin: Metrics.medium
        spacing: 2

        CategoryRailAction {
            enabled: !rail.model.isWorking
            symbol: "plus"
            text: "Nouvelle catégorie"
            width: parent.width
            onClicked: rail.creationAsked()
        }
        CategoryRailAction {
            symbol: "sliders-horizontal"
            text: "Gérer les catégories"
            width: parent.width
            onClicked: rail.managementAsked()
        }
    }
}
