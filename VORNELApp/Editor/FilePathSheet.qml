import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks for the path of a file or folder: of a new one, or of one that is renamed or moved. */
Sheet {
    id: sheet

    required property FileChanges changes

    property string path

    /** Of what is renamed; empty where something new is made. */
    property string former
    property string verb
    property bool isFolder: false

    readonly property string noun: isFolder ? "dossier" : "fichier"
    readonly property string problem: path === former || path.endsWith("/") ? "" : changes.problem(path, isFolder, former)
    readonly property bool canAccept: path !== "" && path !== former && !path.endsWith("/") && problem === ""

    signal chosen

    function askForNew(folder: string, isFolder: bool): void {
        begin("", folder === "" ? "" : folder + "/", isFolder);
        title = "Nouveau " + noun;
        verb = "Créer";
        open();
    }
    function askForName(path: string, isFolder: bool): void {
        begin(path, path, isFolder);
        title = "Renommer ou déplacer";
        verb = "Renommer";
        open();
    }
    function begin(former: string, path: string, isFolder: bool): void {
        sheet.former = former;
        sheet.path = path;
        sheet.isFolder = isFolder;
    }
    function accept(): void {
        if (!canAccept)
            return;
        close();
        if (former !== "")
            changes.move(former, path);
        else if (isFolder)
            changes.createFolder(path);
        else
            changes.createFile(path);
    }

    firstFocus: field
    title: ""
    onSubmitted: accept()

    LabelledField {
        id: field

        hint: sheet.isFolder ? "references" : "references/guide.md"
        label: "Chemin dans la compétence"
        note: "Un dossier qui manque est créé avec le " + sheet.noun + "."
        problem: sheet.problem
        text: sheet.path
        width: parent.width
        onEdited: text => sheet.path = text
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium

        ActionButton {
            text: "Annuler"
            onClicked: sheet.close()
        }
        ActionButton {
            enabled: sheet.canAccept
            role: ActionButton.Primary
            text: sheet.verb
            onClicked: sheet.accept()
        }
    }
}
