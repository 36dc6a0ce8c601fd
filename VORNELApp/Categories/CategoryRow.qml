import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** One category of the catalog, in its colour. Del asks to delete it. */
T.ItemDelegate {
    id: row

    required property int index
    required property categoryEntry record

    signal deletionAsked

    implicitHeight: 52
    focusPolicy: Qt.ClickFocus
    highlighted: activeFocus
    hoverEnabled: true
    text: record.category.name
    onActiveFocusChanged: if (activeFocus && index >= 0) ListView.view.currentIndex = index // it is -1 once the row goes

    Accessible.description: record.category.isProtected ? "Catégorie par défaut" : ""
    Accessible.name: record.spokenName
    Accessible.role: Accessible.ListItem
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onDeletePressed: deletionAsked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()

    background: Rectangle {
        border.color: Colors.accent
        border.width: row.highlighted ? Metrics.focusWidth : 0
        color: row.down || row.hovered ? Colors.hover : "transparent"
        radius: Metrics.controlRadius
    }
    contentItem: Item {
        CategoryTile {
            anchors.left: parent.left
            anchors.leftMargin: Metrics.small
            anchors.verticalCenter: parent.verticalCenter
            categoryID: row.record.category.id
            height: 36
            hue: CategoryVisuals.hue(row.record.category.colorHex)
            width: 36
        }
        Column {
            anchors.left: parent.left
            anchors.leftMargin: 56
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2
            width: end.x - Metrics.medium - x

            Label {
                font: Typography.control
                text: row.text
                width: parent.width

                Accessible.ignored: true
            }
            Label {
                color: Colors.secondary
                font: Typography.small
                text: row.record.countText
                width: parent.width

                Accessible.ignored: true
            }
        }
    }

    Row {
        id: end

        anchors.right: parent.right
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.medium

        Label {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.secondary
            font: Typography.small
            text: "Catégorie par défaut"
            visible: row.record.category.isProtected

            Accessible.ignored: true
        }
        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: row.hovered || row.highlighted ? Colors.text : Colors.muted
            height: Metrics.symbol
            name: "chevron-right"
            width: Metrics.symbol
        }
    }
}
