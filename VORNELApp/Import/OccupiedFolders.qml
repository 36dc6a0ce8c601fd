pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The folders in the way of copies: whose each is, where it stands, and a button that opens it. */
Column {
    id: list

    required property var folders

    /** Whether each skill can be left out. */
    property bool canExclude: false

    /** The keyboard has come to a row. */
    signal reached(row: Item)

    /** The skill of this slug is to be left out. */
    signal excluded(slug: string, index: int)

    /** Brings the keyboard to the row of this number, or to the last; false when there is none. */
    function focusRow(index: int): bool {
        const row = rows.itemAt(Math.min(index, rows.count - 1)) as OccupiedFolderRow;
        row?.focusFirst();
        return row !== null;
    }

    spacing: Metrics.small

    Repeater {
        id: rows

        model: list.folders

        OccupiedFolderRow {
            id: row

            required property int index
            required property targetOccupant modelData

            canExclude: list.canExclude
            occupant: modelData
            width: list.width
            onExcluded: list.excluded(modelData.slug, index)
            onReached: list.reached(row)
        }
    }
}
