import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What is done with the files of the skill that is edited, and what is asked before. */
Item {
    id: actions

    required property AppModel model

    readonly property FileChanges changes: model.openSkill.files
    /** What has been made or changed, until the question about it has closed. */
    property string changedPath
    property bool isNew: false

    readonly property bool canChange: !model.isWorking && model.openSkill.draft.standing !== SkillDraft.Gone

    function folderOf(path: string): string {
        return path.includes("/") ? path.substring(0, path.lastIndexOf("/")) : "";
    }
    /** A change is done, and nothing is asked any more: what is shown of it may have the keyboard. */
    signal settled(path: string, isNew: bool)

    function conclude(path: string, isNew: bool): void {
        changedPath = path;
        actions.isNew = isNew;
        settle();
    }
    function settle(): void {
        if (changedPath === "" || sheet.visible || removal.visible || replacement.visible)
            return;
        const path = changedPath;
        changedPath = "";
        settled(path, isNew);
    }
    /** Whether every skill has this file. */
    function isFixed(path: string): bool {
        return path === "SKILL.md" || path === "vornel.json";
    }
    function askForFile(folder: string): void {
        sheet.askForNew(folder, false);
    }
    function askForFolder(folder: string): void {
        sheet.askForNew(folder, true);
    }
    function askForName(path: string, isFolder: bool): void {
        if (canChange && !isFixed(path))
            sheet.askForName(path, isFolder);
    }
    function askToRemove(path: string, isFolder: bool): void {
        if (canChange && !isFixed(path))
            removal.ask(path, isFolder);
    }
    function bring(urls: var, folder: string): void {
        if (canChange)
            changes.bring(urls, folder);
    }
    function paste(folder: string): void {
        bring(outside.copied(), folder);
    }
    function copy(path: string): void {
        outside.copy(path);
    }
    function copyPath(path: string): void {
        outside.copyPath(path);
    }
    function openWith(path: string): void {
        outside.openWith(path);
    }
    function openFolder(path: string): void {
        outside.openFolder(path);
    }

    OutsideFiles {
        id: outside

        model: actions.model
    }
    FilePathSheet {
        id: sheet

        changes: actions.changes
        onClosed: actions.settle()
    }
    ConfirmationDialog {
        id: removal

        property string path

        function ask(path: string, isFolder: bool): void {
            removal.path = path;
            title = "Supprimer ce " + (isFolder ? "dossier" : "fichier") + "\u00A0?";
            message = (isFolder ? "Le dossier et ce qu’il contient restent" : "Le fichier reste") + " dans l’historique de la compétence."
                + (actions.model.openSkill.draft.files.holds(path) ? "\n\nCe qui n’y est pas enregistré sera perdu." : "");
            open();
        }

        acceptText: "Supprimer"
        isDestructive: true
        message: ""
        subject: path
        title: ""
        onAccepted: actions.changes.remove(path)
        onClosed: actions.settle()
    }
    ConfirmationDialog {
        id: replacement

        acceptText: "Remplacer"
        message: "Ce qui est remplacé reste dans l’historique de la compétence, sauf ce qui n’est pas enregistré."
        title: ""
        onAccepted: actions.changes.add()
        onClosed: actions.settle()
    }
    Connections {
        function onCreated(path) {
            actions.conclude(path, true);
        }

        function onMoved(from, to) {
            actions.conclude(to, false);
        }

        function onRemoved(path) {
            actions.conclude(actions.folderOf(path) || "SKILL.md", false);
        }

        function onReplacementAsked(paths) {
            replacement.title = paths.length === 1 ? "Remplacer ce fichier\u00A0?" : "Remplacer " + paths.length + " fichiers\u00A0?";
            replacement.subject = paths.slice(0, 5).join("\n") + (paths.length > 5 ? "\n…" : "");
            replacement.open();
        }

        target: actions.changes
    }
}
