import QtQuick
import QtQuick.Templates as T

/** Items one below another, which scroll where they have no room; the one that gets the keyboard is brought into view. */
Flickable {
    id: view

    property real padding: 0
    property real spacing: 0
    default property alias items: column.data

    /** Scrolls to a control, with all that belongs to it where there is room. */
    function reveal(control: Item): void {
        let item = control;
        while (item.parent !== column && item.parent.height + 2 * padding <= height)
            item = item.parent;
        const top = item.mapToItem(column, 0, 0).y;
        const highest = top + item.height + 2 * padding - height;
        contentY = Math.max(0, Math.min(Math.max(contentY, highest), top));
    }

    /** The control in the column that has the keyboard is brought into view. */
    function follow(): void {
        let item = Window.activeFocusItem;
        while (item !== null && item !== column)
            item = item.parent;
        if (item !== null)
            reveal(Window.activeFocusItem);
    }

    boundsBehavior: Flickable.StopAtBounds
    clip: true
    contentHeight: implicitHeight
    implicitHeight: column.height + 2 * padding
    Window.onActiveFocusItemChanged: follow()
    onContentHeightChanged: follow()

    T.ScrollBar.vertical: ScrollRail {
        id: rail
    }

    Column {
        id: column

        spacing: view.spacing
        width: view.width - 2 * view.padding - (rail.visible ? Math.max(0, rail.width - view.padding) : 0)
        x: view.padding
        y: view.padding
    }
}
