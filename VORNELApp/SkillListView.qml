import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/**
 * Rows of skills. Up, Down, Home, End, Page Up and Page Down move. The view stays where it is when rows go or
 * come, and the row that takes the place of one that is gone has the keyboard.
 */
ListView {
    id: view

    required property string name
    required property SkillList skills

    property real place

    function moveTo(index: int): void {
        currentIndex = Math.max(0, Math.min(index, count - 1));
        positionViewAtIndex(currentIndex, ListView.Contain);
        currentItem?.forceActiveFocus(Qt.TabFocusReason);
    }
    function begin(): void {
        forceLayout(); // which takes the current row along
        currentIndex = Math.min(0, count - 1);
        positionViewAtBeginning();
    }

    /** Takes the keyboard, if a sheet that closed could give it back to no one. */
    function takeOver(): void {
        if (Window.activeFocusItem === Window.contentItem)
            forceActiveFocus(Qt.OtherFocusReason);
    }

    activeFocusOnTab: count > 0 || activeFocus // which has to be a stop while it has the keyboard
    bottomMargin: Metrics.huge
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    focus: true
    highlightFollowsCurrentItem: false
    keyNavigationEnabled: false
    model: skills.rows
    spacing: Metrics.small
    topMargin: Metrics.tiny

    Accessible.name: name
    Accessible.role: Accessible.List
    T.ScrollBar.vertical: ScrollRail {}
    Keys.onPressed: event => {
        const page = Math.max(1, Math.floor(height / ((currentItem?.height ?? 0) + spacing)));
        const steps = { [Qt.Key_Up]: -1, [Qt.Key_Down]: 1, [Qt.Key_Home]: -count, [Qt.Key_End]: count, [Qt.Key_PageUp]: -page, [Qt.Key_PageDown]: page };
        event.accepted = count > 0 && event.key in steps;
        if (event.accepted)
            moveTo(currentIndex + steps[event.key]);
    }
    Window.onActiveFocusItemChanged: if (activeFocus) recovery.start()

    Timer {
        id: recovery

        interval: 0 // once the rows are laid out
        onTriggered: {
            const item = view.Window.activeFocusItem;
            if (view.activeFocus && (item === view || !item.visible || !item.enabled)) // what had the keyboard is gone
                view.currentItem?.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
    Timer {
        id: replacement

        interval: 0 // once the view has begun anew
        onTriggered: {
            view.forceLayout();
            view.contentY = Math.max(view.originY - view.topMargin, Math.min(view.place, view.originY + view.contentHeight + view.bottomMargin - view.height));
        }
    }
    Connections {
        function onSearched() {
            view.begin();
        }

        target: view.skills
    }
    Connections {
        function onModelAboutToBeReset() {
            view.place = view.contentY;
        }
        function onModelReset() {
            replacement.start();
        }

        target: view.skills.rows
    }
}
