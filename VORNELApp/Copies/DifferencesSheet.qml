pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Shows what the assistants' copies hold that VORNEL's version doesn't, and asks what is to be kept of it. */
Sheet {
    id: sheet

    required property AppModel model
    required property CopyReplacement replacement

    readonly property SkillCopies copies: replacement.copies
    readonly property bool isSaving: replacement.purpose === CopyReplacement.Saving

    /** Whether the copies are merged, once the sheet is closed. */
    property bool isMerging: false

    /** What the title, the notes and the buttons leave. */
    readonly property real bodyHeight: Math.max(120, Math.round(parent.height - notes.height - choices.height - problem.height) - 290)

    function compare(target: int, path: string): void {
        if (isSaving && path === "SKILL.md")
            comparison.compareWithText(target, path, replacement.newText);
        else
            comparison.compare(target, path);
    }

    firstFocus: files.count === 0 ? closing as Item : files.list as Item
    implicitWidth: Math.min(1040, parent.width - 2 * Metrics.page)
    title: "Différences avec les copies"
    onAboutToHide: replacement.decline()
    onAboutToShow: {
        isMerging = false;
        files.currentIndex = 0;
        files.show();
    }

    onClosed: if (isMerging) model.adoption.merge(copies.skillID)

    Connections {
        function onChanged() {
            if (sheet.replacement.isAsking)
                sheet.open();
            else
                sheet.close();
        }

        target: sheet.replacement
    }

    Column {
        id: notes

        spacing: Metrics.large
        width: parent.width

        Label {
            color: Colors.secondary
            lineHeight: 1.35
            text: "Ce qui est marqué + n’est que chez l’assistant, ce qui est marqué − que dans "
                  + (sheet.isSaving ? "votre version." : "la version de VORNEL.")
                  + (sheet.copies.hasEdits ? " Cochez des fichiers pour n’adopter qu’eux." : "")
            visible: files.count > 0
            width: parent.width
            wrapMode: Text.Wrap
        }
        Label {
            color: Colors.danger
            text: "Les copies des assistants n’ont pas pu être comparées. «\u00A0" + sheet.replacement.verb
                  + "\u00A0» les remplace\u00A0; ce qu’elles contiennent reste dans l’historique. " + sheet.copies.problem
            visible: sheet.copies.problem !== ""
            width: parent.width
            wrapMode: Text.Wrap
        }
        Repeater {
            model: sheet.copies.targets

            FailedCopy {
                required property copyInspection modelData

                canAct: !sheet.model.isWorking
                inspection: modelData
                visible: modelData.reason !== ""
                width: parent?.width ?? 0
                onSettingAsideAsked: sheet.model.setCopyAside(sheet.copies.skillID, modelData.target)
            }
        }
    }
    Row {
        height: sheet.bodyHeight
        spacing: Metrics.medium
        visible: files.count > 0
        width: parent.width

        DifferentFiles {
            id: files

            height: parent.height
            model: sheet.copies.differences
            width: Math.min(300, parent.width / 3)
            onChosen: (target, path) => sheet.compare(target, path)
        }
        DifferentLines {
            comparison: comparison
            height: parent.height
            width: parent.width - files.width - parent.spacing
        }
    }
    FileComparison {
        id: comparison

        model: sheet.model
        skillID: sheet.copies.skillID
    }
    CopyChoices {
        id: choices

        model: sheet.model
        replacement: sheet.replacement
        width: parent.width
        onMergeAsked: {
            sheet.isMerging = true;
            sheet.close();
        }
    }
    ErrorPanel {
        id: problem

        text: sheet.isUsed ? sheet.model.errorMessage : ""
        width: parent.width
        onDismissed: {
            sheet.model.clearError();
            sheet.firstFocus.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
    ActionButton {
        id: closing

        anchors.right: parent.right
        text: "Fermer"
        onClicked: sheet.close()
    }
}
