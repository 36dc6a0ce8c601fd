pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Stands before whatever replaces the assistants' copies: shows what they hold that VORNEL's doesn't. */
Sheet {
    id: sheet

    required property AppModel model
    required property SkillCopies copies

    /** What the title, the notes and the buttons leave. */
    readonly property real bodyHeight: Math.max(120, Math.round(parent.height - notes.height) - 290)

    property string acceptText

    /** What replaces the copies, while it waits for a look at them or for the user. */
    property var action

    /** What "SKILL.md" will be once the copies are replaced, where that isn't what VORNEL's version holds. */
    property var newText

    /** The copies are to stay as they are. */
    signal declined

    /** Whether a copy that can't be looked at is to be shown before `action` is run. */
    property bool asksAboutUnreadable

    /** Saves this text once the copies have been looked at, and the user has agreed where one has edits of its own. */
    function saveOverCopies(text: string, action: var): void {
        prepare("Enregistrer", action, text);
        asksAboutUnreadable = false;
        copies.check();
    }

    /** Synchronises so, which can only fail with a copy that can't be looked at. */
    function synchronizeCopies(action: var): void {
        prepare("Synchroniser", action);
        asksAboutUnreadable = true;
        copies.check();
    }

    /** Opens in any case. */
    function show(acceptText: string, action: var): void {
        prepare(acceptText, action);
        open();
    }
    function prepare(acceptText: string, action: var, newText: var): void {
        sheet.acceptText = acceptText;
        sheet.action = action;
        sheet.newText = newText;
    }
    function compare(target: int, path: string): void {
        if (newText !== undefined && path === "SKILL.md")
            comparison.compareWithText(target, path, newText);
        else
            comparison.compare(target, path);
    }
    /** Leaves what waits undone. */
    function forget(): void {
        action = undefined;
    }
    function act(): void {
        const accepted = action;
        action = undefined;
        accepted();
    }

    firstFocus: files.count === 0 ? closing as Item : files.list as Item
    implicitWidth: Math.min(1040, parent.width - 2 * Metrics.page)
    title: "Différences avec les copies"
    onAboutToHide: {
        if (action !== undefined)
            declined();
        action = undefined;
    }
    onAboutToShow: {
        files.currentIndex = 0;
        files.show();
    }

    Connections {
        function onChecked() {
            if (sheet.isUsed || sheet.action === undefined || sheet.model.isWorking) // after which it is checked again
                return;
            const isOpening = sheet.asksAboutUnreadable && sheet.copies.hasUnreadable;
            if (isOpening || sheet.copies.hasDrifted || sheet.copies.problem !== "")
                sheet.open();
            else
                sheet.act();
        }

        function onChanged() {
            const isSettled = !sheet.copies.hasFailed && !sheet.copies.hasDrifted && sheet.copies.problem === "";
            if (sheet.opened && isSettled)
                sheet.close();
        }

        target: sheet.copies
    }

    Column {
        id: notes

        spacing: Metrics.large
        width: parent.width

        Label {
            color: Colors.secondary
            lineHeight: 1.35
            text: "Voici ce que les copies des assistants ont de différent. «\u00A0" + sheet.acceptText
                  + "\u00A0» les remplace par " + (sheet.newText === undefined ? "la version de VORNEL" : "votre version") + "\u00A0: ce qui est marqué + disparaît, ce qui est marqué − revient. "
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
                required property targetInspection modelData

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
    CopyComparison {
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
            symbol: sheet.newText === undefined ? "folder-sync" : "save"
            text: sheet.acceptText
            onClicked: {
                sheet.act();
                sheet.close();
            }
        }
    }
}
