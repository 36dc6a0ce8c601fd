import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks which versions are no longer wanted, tells beforehand what would go, and deletes it once that is confirmed. */
Sheet {
    id: sheet

    required property AppModel model
    required property HistoryRoom room

    firstFocus: keep
    title: "Alléger l’historique"
    onAboutToShow: room.isRehearsing = true
    onClosed: room.isRehearsing = false

    Label {
        color: Colors.secondary
        lineHeight: 1.35
        text: "L’historique de toutes les compétences tient en " + sheet.room.extentText + ". Rien n’en est supprimé sans vous, et ce que la bibliothèque contient maintenant reste toujours."
        width: parent.width
        wrapMode: Text.Wrap
    }
    LabelledField {
        id: keep

        label: "Versions à garder pour chaque compétence"
        note: "Les plus récentes restent, quel que soit leur âge."
        problem: sheet.room.keepProblem
        text: sheet.room.keep
        width: parent.width
        onEdited: text => sheet.room.keep = text
    }
    LabelledField {
        label: "Jours pendant lesquels garder toutes les autres"
        note: "Les versions remplacées depuis moins longtemps restent, quel que soit leur nombre."
        problem: sheet.room.daysProblem
        text: sheet.room.days
        width: parent.width
        onEdited: text => sheet.room.days = text
    }
    Label {
        color: sheet.room.canPrune ? Colors.warning : Colors.secondary
        height: Math.max(implicitHeight, 20) // so that nothing jumps while it is worked out
        text: sheet.room.forecast
        width: parent.width
        wrapMode: Text.Wrap
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium

        ActionButton {
            text: "Fermer"
            onClicked: sheet.close()
        }
        ActionButton {
            enabled: sheet.room.canPrune && !sheet.model.isWorking
            role: ActionButton.Destructive
            symbol: "trash-2"
            text: "Supprimer ces versions…"
            onClicked: question.open()
        }
    }
    ConfirmationDialog {
        id: question

        acceptText: "Supprimer"
        isDestructive: true
        message: sheet.room.forecast + " Elles ne pourront pas être récupérées."
        title: sheet.room.question
        onAccepted: {
            sheet.room.prune();
            sheet.close();
        }
    }
}
