import QtQuick
import QtQuick.Dialogs
import VORNELApp

/** The dialogs in which the user chooses what to add. */
DialogHost {
    id: dialogs

    required property AppModel model

    function chooseFolder(): void {
        show(folder);
    }
    function chooseArchives(): void {
        show(archives);
    }

    FolderDialog {
        id: folder

        acceptLabel: "Choisir"
        rejectLabel: "Annuler"
        title: "Dossier d’une ou de plusieurs compétences"
        onAccepted: {
            dialogs.giveKeyboardBack();
            dialogs.model.addition.begin([selectedFolder]);
        }
        onRejected: dialogs.giveKeyboardBack()
    }
    FileDialog {
        id: archives

        acceptLabel: "Choisir"
        fileMode: FileDialog.OpenFiles
        nameFilters: ["Archives (*.zip *.tar *.tar.* *.tgz)", "Tous les fichiers (*)"]
        rejectLabel: "Annuler"
        title: "Archives de compétences"
        onAccepted: {
            dialogs.giveKeyboardBack();
            dialogs.model.addition.begin(selectedFiles);
        }
        onRejected: dialogs.giveKeyboardBack()
    }
}
