pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks before the assistants' copies are replaced: shows what they hold that VORNEL's version doesn't. */
Sheet {
    id: sheet

    required property AppModel model
    required property CopyReplacement replacement

    readonly property SkillCopies copies: replacement.copies
    readonly property bool isSaving: replacement.purpose === CopyReplacement.Saving
    readonly property string acceptText: isSaving ? "Enregistrer" : "Synchroniser"

    /** What the title, the notes and the buttons leave. */
    readonly property real bodyHeight: Math.max(120, Math.round(parent.height - notes.height) - 290)

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
        files.currentIndex = 0;
        files.show();
    }

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
            text: "Voici ce que les copies des assistants ont de différent. «\u00A0" + sheet.acceptText
                  + "\u00A0» les remplace par " + (sheet.isSaving ? "votre version" : "la version de VORNEL") + "\u00A0: ce qui est marqué + disparaît, ce qui est marqué − revient. "
                  + (sheet.copies.hasEdits || sheet.copies.hasFailed ? "Ce qui est remplacé reste dans l’historique."
                                           : "Rien n’a été modifié chez les assistants\u00A0: c’est le dossier de VORNEL qui a changé depuis, et rien ne sera perdu.")
            visible: files.count > 0
            width: parent.width
            wrapMode: Text.Wrap
        }
        Label {
            color: Colors.danger
            text: "Les copies des assistants n’ont pas pu être comparées. «\u00A0" + sheet.acceptText
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
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium

        ActionButton {
            id: closing

            text: "Fermer"
            onClicked: sheet.close()
        }
        ActionButton {
            enabled: !sheet.model.isWorking
            role: sheet.copies.hasUnreadable ? ActionButton.Quiet : ActionButton.Primary // which can't replace all
            symbol: sheet.isSaving ? "save" : "folder-sync"
            text: sheet.acceptText
            onClicked: sheet.replacement.agree()
        }
    }
}
