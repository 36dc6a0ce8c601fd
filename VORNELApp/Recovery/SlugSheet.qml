import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks for the identifier under which a copy that was set aside becomes a skill of its own. */
Sheet {
    id: sheet

    required property AppModel model

    readonly property bool canRestore: form.slug !== "" && form.problem === "" && !form.isWaiting && !model.isWorking

    function ask(copy: string, slug: string, name: string): void {
        form.begin(copy, slug);
        title = "Restaurer «\u00A0" + name + "\u00A0»";
        open();
    }
    function restore(): void {
        if (canRestore && !occupied.isAsking)
            occupied.ask(form.slug);
    }

    firstFocus: slug
    title: ""
    onAboutToHide: occupied.forget()
    onSubmitted: restore()

    SetAsideForm {
        id: form

        model: sheet.model
        onAccepted: sheet.close()
    }
    OccupiedQuestion {
        id: occupied

        acceptText: "Remplacer"
        model: sheet.model
        title: canAccept ? "Le dossier «\u00A0" + form.slug + "\u00A0» existe déjà" : "Le nom «\u00A0" + form.slug + "\u00A0» est déjà pris"
        onAccepted: form.submit()
        onUnoccupied: form.submit()
    }
    Label {
        color: Colors.secondary
        lineHeight: 1.35
        text: "Une nouvelle compétence est créée avec les fichiers de cette copie, et installée chez vos assistants."
        width: parent.width
        wrapMode: Text.Wrap
    }
    LabelledField {
        id: slug

        hint: "audit-securite"
        label: "Identifiant"
        note: "Le dossier de la compétence portera ce nom."
        problem: form.problem
        text: form.slug
        width: parent.width
        onEdited: text => form.slug = text
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium

        ActionButton {
            text: "Annuler"
            onClicked: sheet.close()
        }
        ActionButton {
            enabled: sheet.canRestore
            role: ActionButton.Primary
            text: "Restaurer la copie"
            onClicked: sheet.restore()
        }
    }
}
