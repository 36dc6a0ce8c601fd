import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks for the identifier under which a new skill is made of something that is there. */
Sheet {
    id: sheet

    required property AppModel model
    required property SlugForm form
    required property string explanation
    required property string acceptText

    readonly property bool canAccept: form.slug !== "" && form.problem === "" && !form.isWaiting && !model.isWorking

    function accept(): void {
        if (canAccept && !occupied.isAsking)
            occupied.ask(form.slug);
    }

    firstFocus: slug
    title: ""
    onAboutToHide: occupied.forget()
    onSubmitted: accept()

    OccupiedQuestion {
        id: occupied

        acceptText: "Remplacer"
        model: sheet.model
        title: canAccept ? "Le dossier «\u00A0" + sheet.form.slug + "\u00A0» existe déjà" : "Le nom «\u00A0" + sheet.form.slug + "\u00A0» est déjà pris"
        onAccepted: sheet.form.submit()
        onUnoccupied: sheet.form.submit()
    }
    Label {
        color: Colors.secondary
        lineHeight: 1.35
        text: sheet.explanation
        width: parent.width
        wrapMode: Text.Wrap
    }
    LabelledField {
        id: slug

        hint: "audit-securite"
        label: "Identifiant"
        note: "Le dossier de la compétence portera ce nom."
        problem: sheet.form.problem
        text: sheet.form.slug
        width: parent.width
        onEdited: text => sheet.form.slug = text
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
            text: sheet.acceptText
            onClicked: sheet.accept()
        }
    }
}
