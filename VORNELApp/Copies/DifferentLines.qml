pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/**
 * The lines in which a file differs, in the order of the file, with some of what lies around them. Lines are selected
 * with the mouse or the arrows, more of them with Shift, and copied.
 */
Surface {
    id: pane

    required property FileComparison comparison

    /** Where the selection began, which goes on to the current line; -1 without one. */
    property int anchor: -1

    readonly property int first: Math.min(anchor, view.currentIndex)
    readonly property int last: anchor < 0 ? -1 : Math.max(anchor, view.currentIndex)

    function moveTo(index: int, isExtending: bool): void {
        view.currentIndex = Math.max(0, Math.min(index, view.count - 1));
        if (!isExtending || anchor < 0)
            anchor = view.currentIndex;
        view.positionViewAtIndex(view.currentIndex, ListView.Contain);
        view.currentItem?.forceActiveFocus();
    }
    function move(step: int, isExtending: bool): void {
        moveTo(anchor < 0 ? 0 : view.currentIndex + step, isExtending);
    }
    function selectAll(): void {
        anchor = 0;
        view.currentIndex = view.count - 1;
    }

    border.color: view.activeFocus ? Colors.accent : Colors.line

    Connections {
        function onModelReset() {
            pane.anchor = -1;
        }

        target: pane.comparison
    }
    ListView {
        id: view

        anchors.fill: parent
        anchors.margins: Metrics.small
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        highlightFollowsCurrentItem: false
        keyNavigationEnabled: false
        model: pane.comparison

        Accessible.name: "Lignes différentes"
        Accessible.role: Accessible.List
        Keys.onPressed: event => {
            const page = Math.max(1, Math.floor(height / (currentItem?.height ?? height)));
            const steps = {
                [Qt.Key_Up]: -1, [Qt.Key_Down]: 1, [Qt.Key_Home]: -count, [Qt.Key_End]: count,
                [Qt.Key_PageUp]: -page, [Qt.Key_PageDown]: page
            };
            event.accepted = count > 0;
            if (event.key in steps)
                pane.move(steps[event.key], event.modifiers & Qt.ShiftModifier);
            else if (event.matches(StandardKey.SelectAll))
                pane.selectAll();
            else if (event.matches(StandardKey.Copy))
                pane.comparison.copy(pane.first, pane.last);
            else
                event.accepted = false;
        }
        T.ScrollBar.vertical: ScrollRail {}

        delegate: DifferentLine {
            isSelected: index >= pane.first && index <= pane.last
            width: view.width - Metrics.medium
        }
    }
    MouseArea {
        id: mouse

        function lineAt(y: real): int {
            const index = view.indexAt(0, view.contentY + Math.max(0, Math.min(y, view.height - 1)));
            return index < 0 ? view.count - 1 : index;
        }

        anchors.fill: view
        anchors.rightMargin: Metrics.medium // where the rail is
        cursorShape: Qt.IBeamCursor
        enabled: view.count > 0
        onPositionChanged: event => pane.moveTo(lineAt(event.y), true)
        onPressed: event => pane.moveTo(lineAt(event.y), event.modifiers & Qt.ShiftModifier)

        Timer {
            interval: 50
            repeat: true
            running: mouse.pressed && !mouse.containsMouse
            onTriggered: pane.move(mouse.mouseY < 0 ? -1 : mouse.mouseY > mouse.height ? 1 : 0, true)
        }
    }
    Label {
        anchors.centerIn: parent
        color: Colors.secondary
        text: pane.comparison.explanation
        visible: view.count === 0
    }
}
