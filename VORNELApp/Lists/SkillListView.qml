import QtQuick
import VORNELApp
import VORNELDesignSystem

/**
 * Rows of skills. The view stays where it is when rows go or come, and the row that takes the place of one that is
 * gone has the keyboard.
 */
RowList {
    id: view

    required property SkillList skills

    property real place

    function begin(): void {
        forceLayout(); // first, as it moves the current row
        currentIndex = Math.min(0, count - 1);
        positionViewAtBeginning();
    }

    /** Takes the keyboard if a sheet that has closed could not give it back. */
    function takeOver(): void {
        if (Window.activeFocusItem === Window.contentItem)
            forceActiveFocus(Qt.OtherFocusReason);
    }

    activeFocusOnTab: skills.count > 0 || activeFocus // a stop of Tab while it has the keyboard
    bottomMargin: Metrics.huge
    focus: true
    model: skills.rows
    spacing: Metrics.small
    topMargin: Metrics.tiny

    Window.onActiveFocusItemChanged: if (activeFocus) recovery.start()

    Shortcut {
        enabled: view.activeFocus
        sequences: ["Menu", "Shift+F10"]
        onActivated: {
            const row = view.currentItem as SkillListRow;
            row?.menuAsked(Qt.point(row.leftPadding, row.height / 2));
        }
    }
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
            const end = view.originY + view.contentHeight + view.bottomMargin - view.height;
            view.contentY = Math.max(view.originY - view.topMargin, Math.min(view.place, end));
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
