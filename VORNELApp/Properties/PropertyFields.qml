import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The properties of the selected skill to change, and what else is known of it. */
ScrollColumn {
    id: fields

    required property AppModel model
    required property PropertyForm form

    /** Whether nothing stands where copies of another identifier would. */
    readonly property bool hasRoom: occupants.count === 0

    function takeKeyboard(): void {
        name.forceActiveFocus(Qt.TabFocusReason);
    }

    padding: Metrics.large
    spacing: Metrics.large

    TargetOccupants {
        id: occupants

        readonly property string newSlug: fields.form.newSlug

        model: fields.model
        onNewSlugChanged: look(newSlug === "" ? [] : [newSlug])
    }
    SkillFacts {
        id: facts

        model: fields.model
    }
    LabelledField {
        id: name

        label: "Nom"
        problem: fields.form.nameProblem
        text: fields.form.displayName
        width: parent.width
        onEdited: text => fields.form.displayName = text
    }
    LabelledText {
        hint: "Ce que cette compétence permet de faire"
        label: "Description"
        text: fields.form.summary
        width: parent.width
        onEdited: text => fields.form.summary = text
    }
    Column {
        spacing: Metrics.tiny
        width: parent.width

        ActionButton {
            enabled: !fields.model.isWorking
            font: Typography.small
            height: 28
            isFlat: true
            leftPadding: Metrics.small
            symbol: "file-text"
            text: "Reprendre du SKILL.md"
            x: -Metrics.small
            onClicked: fields.form.takeFromText()

            Accessible.description: "Prend le nom et la description dans l’en-tête du texte enregistré"
        }
        Label {
            color: Colors.secondary
            font: Typography.small
            text: fields.form.textNote
            visible: text !== ""
            width: parent.width
            wrapMode: Text.Wrap
        }
    }
    TagField {
        label: "Mots-clés"
        model: fields.model
        texts: fields.form.tags
        typed: fields.form.typedTag
        width: parent.width
        onAdded: text => fields.form.addTags(text)
        onEdited: text => fields.form.typedTag = text
        onRemoved: text => fields.form.removeTag(text)
    }
    CategoryChoice {
        currentID: fields.form.category
        model: fields.model
        width: parent.width
        onChosen: id => fields.form.category = id
    }
    MaturityChoice {
        current: fields.form.maturity
        texts: fields.form.maturityTexts
        width: parent.width
        onChosen: index => fields.form.maturity = index
    }
    Column {
        spacing: Metrics.large
        width: parent.width

        LabelledField {
            label: "Identifiant"
            note: fields.form.newSlug === "" ? "Le nom du dossier de la compétence."
                                             : "Enregistrer renommera le dossier de la compétence et ses deux copies."
            problem: {
                if (fields.form.slugProblem !== "" || fields.hasRoom)
                    return fields.form.slugProblem;
                return occupants.count === 1 ? occupants.folders[0].assistant + " a déjà un dossier de ce nom."
                                             : "Claude et Codex ont déjà un dossier de ce nom.";
            }
            text: fields.form.slug
            width: parent.width
            onEdited: text => fields.form.slug = text
        }
        Column {
            width: parent.width

            PropertyFact {
                label: "Création"
                value: facts.created
                width: parent.width
            }
            PropertyFact {
                label: "Dernier changement"
                value: facts.updated
                width: parent.width
            }
            PropertyFact {
                label: "Révision"
                value: facts.revision
                width: parent.width
            }
            PropertyFact {
                label: "Taille"
                value: facts.size
                width: parent.width
            }
        }
    }
}
