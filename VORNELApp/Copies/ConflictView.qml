pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** One conflict: both versions side by side, or the text that is to replace them, and the choice between these. */
Item {
    id: view

    required property AppModel model
    required property ConflictRow conflict

    readonly property ConflictList conflicts: model.adoption.conflicts
    readonly property int choice: conflict?.choice ?? ConflictList.Open
    readonly property bool isEditing: choice === ConflictList.Text

    /** Shows the conflict anew. */
    function show(): void {
        if (conflict === null)
            return;
        comparison.compare(model.adoption.skillID, conflict.path);
        text.edit(conflict.index);
    }
    function choose(choice: int): void {
        conflicts.choose(conflict.index, choice);
    }

    onConflictChanged: show()

    SideBySide {
        id: comparison

        model: view.model
    }
    ConflictText {
        id: text

        conflicts: view.conflicts
        document: pane.area.textDocument
    }
    Row {
        id: choices

        spacing: Metrics.small

        ChoiceButton {
            isChosen: view.choice === ConflictList.Claude
            text: "Garder Claude"
            onClicked: view.choose(ConflictList.Claude)
        }
        ChoiceButton {
            isChosen: view.choice === ConflictList.Codex
            text: "Garder Codex"
            onClicked: view.choose(ConflictList.Codex)
        }
        ChoiceButton {
            isChosen: view.isEditing
            text: "Modifier le texte"
            visible: view.conflict?.hasText ?? false
            onClicked: {
                view.choose(ConflictList.Text);
                pane.area.cursorPosition = Math.max(0, pane.area.text.indexOf("<<<<<<< "));
                pane.forceActiveFocus();
            }
        }
    }
    Row {
        id: titles

        anchors.top: choices.bottom
        anchors.topMargin: Metrics.medium
        height: claude.height
        spacing: Metrics.large
        width: parent.width

        Label {
            id: claude

            color: Colors.secondary
            font: Typography.label
            text: view.isEditing ? "" : comparison.leftTitle
            width: (parent.width - parent.spacing) / 2
        }
        Label {
            color: Colors.secondary
            font: Typography.label
            text: view.isEditing ? "" : comparison.rightTitle
            width: claude.width
        }
    }
    Label {
        anchors.left: titles.left
        anchors.top: titles.top
        color: view.conflict?.isSettled ? Colors.success : Colors.warning
        font: Typography.small
        text: view.conflict?.isSettled ? "Ce texte remplacera les deux versions."
                                       : "Retirez les lignes <<<<<<<, ======= et >>>>>>> une fois le passage réglé."
        visible: view.isEditing
        width: titles.width
    }
    Surface {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: titles.bottom
        anchors.topMargin: Metrics.small
        border.color: lines.activeFocus || pane.activeFocus ? Colors.accent : Colors.line

        RowList {
            id: lines

            anchors.fill: parent
            anchors.margins: Metrics.small
            model: comparison
            name: "Lignes de Claude et de Codex"
            visible: !view.isEditing

            delegate: SideBySideLine {
                width: lines.width - Metrics.medium
            }
        }
        Label {
            anchors.centerIn: parent
            color: Colors.secondary
            text: comparison.explanation
            visible: lines.visible && lines.count === 0
        }
        CodePane {
            id: pane

            anchors.fill: parent
            visible: view.isEditing

            area.Accessible.name: "Texte fusionné"
        }
    }
}
