import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The sheet in which a skill is created. It stays open, with what was typed, until that has succeeded. */
Sheet {
    id: sheet

    required property AppModel model

    firstFocus: name
    title: "Nouvelle compétence"
    onAboutToShow: form.reset()

    CreateSkillForm {
        id: form

        model: sheet.model
        onCreated: sheet.close()
    }
    LabelledField {
        id: name

        hint: "Ex. Audit de sécurité"
        label: "Nom"
        text: form.displayName
        width: parent.width
        onEdited: text => form.displayName = text
    }
    LabelledField {
        hint: "audit-securite"
        label: "Identifiant"
        text: form.slug
        width: parent.width
        onEdited: text => form.slug = text
    }
    LabelledField {
        hint: "Ce que cette compétence permet de faire"
        label: "Description courte"
        text: form.summary
        width: parent.width
        onEdited: text => form.summary = text
    }
    Label {
        color: form.isValid ? Colors.success : Colors.secondary
        font: Typography.small
        text: form.validationHint
    }
    ErrorPanel {
        text: sheet.model.errorMessage
        width: parent.width
        onDismissed: sheet.model.clearError()
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium

        ActionButton {
            text: "Annuler"
            onClicked: sheet.close()
        }
        ActionButton {
            enabled: form.isValid && !sheet.model.isWorking
            role: ActionButton.Primary
            text: "Créer"
            onClicked: form.submit()
        }
    }
}
