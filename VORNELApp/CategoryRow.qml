import QtQuick
import VORNELApp
import VORNELDesignSystem

/** One category of the catalog, in its colour. */
Item {
    id: row

    required property categoryEntry record

    implicitHeight: Metrics.rowHeight

    Accessible.name: record.spokenName
    Accessible.role: Accessible.ListItem

    CategoryTile {
        id: tile

        anchors.verticalCenter: parent.verticalCenter
        height: 32
        hue: CategoryVisuals.hue(row.record.category.colorHex)
        symbol: CategoryVisuals.symbol(row.record.category.id)
        width: 32
    }
    Label {
        anchors.left: tile.right
        anchors.leftMargin: Metrics.medium
        anchors.right: note.left
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        font: Typography.control
        text: row.record.category.name
    }
    Label {
        id: note

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.secondary
        font: Typography.small
        text: row.record.category.isProtected ? "Catégorie par défaut" : ""
    }
}
