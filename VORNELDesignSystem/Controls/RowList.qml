import QtQuick
import QtQuick.Templates as T

/**
 * Rows, one of which has the keyboard. Up, Down, Home, End, Page Up and Page Down move it to another row, and scroll
 * that into view; Up on the first row is left to the item above. A row that is clicked sets `currentIndex`, and nothing
 * scrolls.
 */
ListView {
    id: list

    required property string name
    readonly property alias rail: rail

    function moveTo(index: int): void {
        currentIndex = Math.max(0, Math.min(index, count - 1));
        positionViewAtIndex(currentIndex, ListView.Contain);
        currentItem?.forceActiveFocus(Qt.TabFocusReason);
    }

    activeFocusOnTab: true
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    highlightFollowsCurrentItem: false // otherwise a click would scroll
    keyNavigationEnabled: false

    Accessible.name: name
    Accessible.role: Accessible.List
    T.ScrollBar.vertical: ScrollRail {
        id: rail
    }
    Keys.onPressed: event => {
        const page = Math.max(1, Math.floor(height / ((currentItem?.height ?? 0) + spacing)));
        const steps = {
            [Qt.Key_Up]: -1, [Qt.Key_Down]: 1, [Qt.Key_Home]: -count, [Qt.Key_End]: count,
            [Qt.Key_PageUp]: -page, [Qt.Key_PageDown]: page
        };
        event.accepted = count > 0 && event.key in steps && !(event.key === Qt.Key_Up && currentIndex === 0);
        if (event.accepted)
            moveTo(currentIndex + steps[event.key]);
    }
    Window.onActiveFocusItemChanged: {
        const control = Window.activeFocusItem as T.Control;
        if (activeFocus && control?.visualFocus) // it was reached by the tab key
            positionViewAtIndex(currentIndex, ListView.Contain);
    }
}
