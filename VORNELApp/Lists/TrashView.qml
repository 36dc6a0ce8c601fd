pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The skills that were thrown away. Ctrl+A selects all that the search finds, Esc ends the selection. */
FocusScope {
    id: trash

    required property AppModel model

    readonly property string countText: {
        const total = entries.totalCount;
        const counted = total === 1 ? "1 élément" : total + " éléments";
        return entries.count === total ? counted : entries.count + " sur " + counted;
    }

    function enterResults(): void {
        if (entries.count > 0)
            view.moveTo(0);
    }

    Keys.onEscapePressed: event => {
        event.accepted = selection.isSelecting;
        selection.end();
    }
    Keys.onPressed: event => {
        event.accepted = event.matches(StandardKey.SelectAll) && !setAside.activeFocus;
        if (event.accepted)
            selection.selectAll();
    }

    SkillSelection {
        id: selection

        destination: AppStates.Destination.trash
        model: trash.model
    }
    TrashList {
        id: entries

        model: trash.model
        selection: selection
    }
    TrashQuestions {
        id: questions

        model: trash.model
        selection: selection
        total: entries.totalCount
        onClosed: view.takeOver()
    }
    TrashMenu {
        id: menu

        model: trash.model
        selection: selection
        onClosed: view.takeOver()
        onDeletionAsked: skill => questions.askToDelete(skill)
        onRestorationAsked: skill => questions.askToRestore(skill)
    }
    SkillListHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        countText: trash.countText
        line: entries.totalCount === 0 ? "" : "Les compétences de la corbeille ne sont plus dans vos assistants."
        title: "CORBEILLE"

        ActionButton {
            enabled: selection.isSelecting || entries.count > 0
            isCompact: header.width < Metrics.roomForTexts
            symbol: "circle-check"
            text: selection.isSelecting ? "Terminer la sélection" : "Sélectionner"
            onClicked: selection.isSelecting ? selection.end() : selection.begin()
        }
        ActionButton {
            enabled: entries.totalCount > 0 && !trash.model.isWorking
            role: ActionButton.Destructive
            symbol: "trash-2"
            text: "Vider la corbeille"
            onClicked: questions.askToEmpty()
        }
    }
    SkillListView {
        id: view

        anchors.bottom: setAside.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        name: "Corbeille"
        skills: entries

        delegate: TrashRow {
            model: trash.model
            selection: entries.selection
            onDeletionAsked: {
                view.currentIndex = index;
                questions.askToDelete(record.skill);
            }
            onMenuAsked: place => {
                if (!questions.isLooking) // which asks about what was chosen before
                    menu.openFor(record.skill, this, place);
            }
            onRestorationAsked: {
                view.currentIndex = index;
                questions.askToRestore(record.skill);
            }
        }
    }
    EmptySkillList {
        anchors.centerIn: view
        emptyLine: "Les compétences que vous supprimez attendent ici d’être restaurées ou supprimées définitivement."
        emptySymbol: "trash-2"
        emptyTitle: "La corbeille est vide"
        skills: entries
        width: Math.min(480, view.width - 2 * Metrics.huge)
    }
    SetAsideSection {
        id: setAside

        anchors.bottom: bar.visible ? bar.top : progress.top
        anchors.left: parent.left
        anchors.right: parent.right
        height: implicitHeight
        model: trash.model
        onEmptied: {
            if (activeFocus)
                view.forceActiveFocus(Qt.OtherFocusReason);
            else
                view.takeOver();
        }
        roomForList: (entries.totalCount === 0 ? 0.4 : 0.5) * (trash.height - header.height)
    }
    TrashSelectionBar {
        id: bar

        anchors.bottom: progress.top
        anchors.left: parent.left
        anchors.right: parent.right
        model: trash.model
        selection: selection
        shownCount: entries.count
        visible: selection.isSelecting && !progress.visible
        onDeletionAsked: questions.askToDelete()
        onRestorationAsked: questions.askToRestore()
    }
    BatchBar {
        id: progress

        anchors.bottom: room.top
        anchors.left: parent.left
        anchors.right: parent.right
        batch: trash.model.batch
    }
    HistoryRoomLine {
        id: room

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        model: trash.model
    }
}
