pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/**
 * The line under a text that says what assistants will stumble over; it opens to all problems, and is their heading then.
 * F8 goes from one to the next, Shift+F8 back.
 */
FocusScope {
    id: panel

    required property AppModel model
    required property TextPane pane
    property bool isOpen: false

    /** The problem that was gone to; -1 before the first. */
    property int current: -1

    /** The problem that the line tells. */
    readonly property int told: Math.max(0, Math.min(current, check.count - 1))
    readonly property foundProblem problem: {
        void check.countText; // with the text, its problems may change
        return check.at(told);
    }

    /** A problem was chosen: in the text it is at this position. */
    signal placeAsked(path: string, position: int)

    /** The keyboard is given back to the text. */
    signal escaped

    function choose(index: int): void {
        current = (index + check.count) % check.count;
        list.currentIndex = current;
        list.positionViewAtIndex(current, ListView.Contain);
        const chosen = check.at(current);
        placeAsked(chosen.path, check.position(chosen.line));
    }

    implicitHeight: visible ? line.height + (isOpen ? list.height + Metrics.tiny : 0) : 0
    visible: check.count > 0

    Keys.onEscapePressed: event => {
        event.accepted = isOpen;
        isOpen = false;
        escaped();
    }

    Connections {
        function onBegun() {
            panel.current = -1;
            panel.isOpen = false;
        }

        target: panel.model.openSkill.draft
    }
    Shortcut {
        enabled: check.count > 0
        sequence: "F8"
        onActivated: panel.choose(panel.current + 1)
    }
    Shortcut {
        enabled: check.count > 0
        sequence: "Shift+F8"
        onActivated: panel.choose(Math.max(0, panel.current) - 1)
    }
    Rectangle {
        color: Colors.line
        height: Metrics.hairline
        width: parent.width
    }
    Label {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        anchors.verticalCenter: line.verticalCenter
        color: Colors.secondary
        font: Typography.label
        text: "PROBLÈMES"
        visible: panel.isOpen

        Accessible.ignored: true // the list has this name
    }
    ProblemRow {
        id: line

        anchors.left: parent.left
        anchors.leftMargin: Metrics.tiny
        anchors.right: toggle.left
        anchors.top: parent.top
        focusPolicy: Qt.StrongFocus
        height: panel.isOpen ? 40 : Math.max(40, implicitHeight)
        index: panel.told
        isShort: true
        record: panel.problem
        visible: !panel.isOpen
        Keys.onEnterPressed: clicked()
        Keys.onReturnPressed: clicked()
        onClicked: panel.choose(panel.told)
    }
    ActionButton {
        id: toggle

        anchors.right: parent.right
        anchors.rightMargin: Metrics.small
        anchors.verticalCenter: line.verticalCenter
        font: Typography.small
        height: 28
        isFlat: true
        isSymbolTrailing: true
        leftPadding: Metrics.small
        symbol: panel.isOpen ? "chevron-down" : "chevron-up"
        text: check.countText
        onClicked: {
            const isLeft = line.activeFocus;
            panel.isOpen = !panel.isOpen;
            if (isLeft) // as it is hidden
                list.forceActiveFocus(Qt.OtherFocusReason);
        }

        Accessible.description: panel.isOpen ? "Replier la liste des problèmes" : "Voir tous les problèmes"
    }
    RowList {
        id: list

        anchors.left: parent.left
        anchors.leftMargin: Metrics.tiny
        anchors.right: parent.right
        anchors.rightMargin: Metrics.tiny
        anchors.top: line.bottom
        height: Math.min(contentHeight, 176)
        name: "Problèmes"
        visible: panel.isOpen

        delegate: ProblemRow {
            highlighted: index === panel.current
            width: list.width - (list.rail.visible ? list.rail.width : 0)
            Keys.onEnterPressed: clicked()
            Keys.onReturnPressed: clicked()
            onClicked: panel.choose(index)
        }
        model: TextCheck {
            id: check

            document: panel.pane.area.textDocument
            model: panel.model
        }
    }
}
