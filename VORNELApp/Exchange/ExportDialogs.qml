import QtQuick
import QtQuick.Dialogs
import VORNELApp
import VORNELDesignSystem

/** Asks where skills are to be exported, tells what was written there, or that the name is taken. */
DialogHost {
    id: dialogs

    required property AppModel model

    readonly property ExportRequest request: model.skillExport

    function ask(): void {
        place.currentFolder = request.proposedFolder;
        place.selectedFile = request.proposal;
        show(place);
    }

    Connections {
        function onRefused() {
            taken.open();
        }

        function onWritten() {
            written.open();
        }

        target: dialogs.request
    }
    FileDialog {
        id: place

        acceptLabel: "Exporter"
        defaultSuffix: "zip"
        fileMode: FileDialog.SaveFile
        nameFilters: ["Archives zip (*.zip)"]
        // It need not ask, since nothing is overwritten. Qt 6.4 doesn't tell the linter of its options.
        options: FileDialog.DontConfirmOverwrite // qmllint disable
        rejectLabel: "Annuler"
        title: "Exporter dans une archive"
        onAccepted: {
            dialogs.giveKeyboardBack();
            dialogs.request.write(selectedFile);
        }
        onRejected: dialogs.giveKeyboardBack()
    }
    ConfirmationDialog {
        id: taken

        acceptText: "Utiliser ce nom"
        message: "Le fichier qui s’y trouve reste tel quel. Les compétences peuvent être écrites à côté, dans «\u00A0"
            + dialogs.request.proposedName + "\u00A0»."
        title: "«\u00A0" + dialogs.request.takenName + "\u00A0» existe déjà"
        onAccepted: dialogs.request.writeToProposal()
    }
    ConfirmationDialog {
        id: written

        acceptText: "Ouvrir le dossier"
        message: dialogs.request.content
        rejectText: "Fermer"
        subject: dialogs.request.file
        title: "L’archive est écrite"
        onAccepted: Qt.openUrlExternally(dialogs.request.folder)
    }
}
