import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Where the shell can go, and how the library stands. Up and Down move between the rows. */
Rectangle {
    id: sidebar

    required property AppModel model

    /** The upper edge of the lines at its bottom. The space right above is empty. */
    readonly property alias statusTop: status.y

    readonly property bool isInOrder: model.isOverviewCurrent && model.needsAttentionCount === 0

    color: Colors.surface

    Accessible.name: "Navigation"
    Accessible.role: Accessible.Pane

    Rectangle {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.top: parent.top
        color: Colors.line
        width: Metrics.hairline
    }
    ProductMark {
        id: mark

        anchors.left: parent.left
        anchors.margins: Metrics.huge
        anchors.top: parent.top
        height: 28
        width: 28
    }
    Column {
        anchors.left: parent.left
        anchors.margins: Metrics.medium
        anchors.right: parent.right
        anchors.top: mark.bottom
        anchors.topMargin: Metrics.huge
        spacing: Metrics.tiny

        SidebarRow {
            id: library

            KeyNavigation.down: attention
            destination: AppStates.Destination.library
            model: sidebar.model
            symbol: "layout-grid"
            text: "Bibliothèque"
        }
        SidebarRow {
            id: attention

            KeyNavigation.down: trash
            KeyNavigation.up: library
            count: sidebar.model.needsAttentionCount
            destination: AppStates.Destination.needsAttention
            model: sidebar.model
            symbol: "wrench"
            text: "À réparer"
        }
        SidebarRow {
            id: trash

            KeyNavigation.up: attention
            destination: AppStates.Destination.trash
            model: sidebar.model
            symbol: "trash-2"
            text: "Corbeille"
        }
    }
    Column {
        id: status

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: Metrics.huge
        anchors.right: parent.right
        spacing: Metrics.small

        Label {
            font: Typography.section
            text: "VORNEL"
        }
        Row {
            spacing: Metrics.small

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                color: sidebar.isInOrder ? Colors.success : sidebar.model.isOverviewCurrent ? Colors.warning : Colors.danger
                height: 8
                radius: 4
                width: 8
            }
            Label {
                color: Colors.secondary
                font: Typography.small
                text: sidebar.isInOrder ? "Tout est à jour" : sidebar.model.isOverviewCurrent ? "Attention requise" : "Lecture impossible"
            }
        }
    }
}
