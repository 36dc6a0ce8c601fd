pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The copies that were set aside, below the trash: one line, and their list once it is opened. */
FocusScope {
    id: section

    required property AppModel model

    /** How high the list may become. */
    required property real roomForList

    property bool isOpen: false

    readonly property bool hasFailed: copies.problem !== ""

    /** The list has gone, which may have had the keyboard. */
    signal emptied

    function takeOver(): void {
        if (isOpen)
            view.takeOver();
        else
            emptied();
    }

    implicitHeight: visible ? bar.height + view.height : 0
    visible: copies.totalCount > 0 || hasFailed

    Connections {
        function onCountChanged() {
            if (copies.totalCount > 0 || !section.isOpen)
                return;
            section.isOpen = false;
            section.emptied();
        }

        target: copies
    }
    SetAsideList {
        id: copies

        model: section.model
    }
    SetAsideQuestions {
        id: questions

        copies: copies
        model: section.model
        onClosed: section.takeOver()
    }
    SetAsideSheet {
        id: sheet

        copies: copies
        model: section.model
        onClosed: section.takeOver()
        onDeletionAsked: record => questions.askToDelete(record)
        onRestorationAsked: record => questions.askToRestore(record)
        onRevisionAsked: record => questions.askToRevert(record)
    }
    SetAsideMenu {
        id: menu

        model: section.model
        onClosed: section.takeOver()
        onDeletionAsked: record => questions.askToDelete(record)
        onRestorationAsked: record => questions.askToRestore(record)
        onRevisionAsked: record => questions.askToRevert(record)
        onShowingAsked: record => sheet.show(record)
    }
    ListFooter {
        id: bar

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top

        Label {
            id: title

            anchors.left: parent.left
            anchors.leftMargin: Metrics.huge
            anchors.verticalCenter: parent.verticalCenter
            font: Typography.section
            text: "Copies mises de côté"

            Accessible.role: Accessible.Heading
        }
        Label {
            anchors.left: title.right
            anchors.leftMargin: Metrics.medium
            anchors.baseline: title.baseline
            anchors.right: toggle.left
            anchors.rightMargin: Metrics.medium
            color: section.hasFailed ? Colors.danger : Colors.secondary
            font: Typography.small
            text: section.hasFailed ? "Elles n’ont pas pu être lues. " + copies.problem : copies.summary
        }
        ActionButton {
            id: toggle

            anchors.right: parent.right
            anchors.rightMargin: Metrics.huge
            anchors.verticalCenter: parent.verticalCenter
            symbol: section.isOpen ? "chevron-down" : "chevron-up"
            text: section.isOpen ? "Masquer les copies" : "Afficher les copies"
            visible: copies.totalCount > 0
            onClicked: section.isOpen = !section.isOpen
        }
    }
    SkillListView {
        id: view

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: bar.bottom
        height: section.isOpen ? Math.min(section.roomForList, contentHeight + topMargin + bottomMargin) : 0
        name: "Copies mises de côté"
        skills: copies
        visible: section.isOpen

        delegate: SetAsideRow {
            isChoosable: record.failure === ""
            model: section.model
            onClicked: if (isChoosable) sheet.show(record)
            onDeletionAsked: {
                view.currentIndex = index;
                questions.askToDelete(record);
            }
            onMenuAsked: place => menu.openFor(record, this, place)
            onRestorationAsked: {
                view.currentIndex = index;
                questions.askToRestore(record);
            }
            onRevisionAsked: {
                view.currentIndex = index;
                questions.askToRevert(record);
            }
        }
    }
}
