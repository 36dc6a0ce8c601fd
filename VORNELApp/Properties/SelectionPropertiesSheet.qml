pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Changes the properties of the skills that a selection holds, all at once; what isn't chosen stays as each has it. */
Sheet {
    id: sheet

    required property AppModel model
    required property SkillSelection selection

    /** Whether it opens with the names and descriptions of the texts chosen. */
    property bool isFromText: false

    readonly property alias acceptButton: accept

    readonly property var removedTags: form.removedTags
    readonly property bool canSave: form.isModified && !form.isWaiting && !model.isWorking
    readonly property string skills: form.count === 1 ? "la compétence" : form.count + " compétences"

    function ask(): void {
        form.begin(selection.ids());
        form.isFromText = isFromText;
        names.text = selection.heldNames();
        if (form.count > 0) // they may be gone by now
            open();
    }
    function submit(): void {
        if (canSave)
            form.submit();
    }

    firstFocus: category
    implicitWidth: Math.min(560, parent.width - 2 * Metrics.page)
    title: "Propriétés de " + skills
    onSubmitted: submit()

    SelectionPropertyForm {
        id: form

        model: sheet.model
        onAccepted: sheet.close()
    }
    Label {
        id: names

        color: Colors.secondary
        width: parent.width
        wrapMode: Text.Wrap
    }
    ScrollColumn {
        height: Math.min(implicitHeight, (sheet.parent?.height ?? 0) - 244)
        padding: Metrics.tiny // for the frame around the control that has the keyboard
        spacing: Metrics.large
        width: parent.width + 2 * padding
        x: -padding

        Accessible.name: sheet.title
        Accessible.role: Accessible.Form

        Field {
            label: "Nom et description"
            problem: form.textFailure
            visible: form.textChanges !== "" || form.textFailure !== ""
            width: parent.width

            Column {
                spacing: Metrics.small
                width: parent.width

                FilterChip {
                    enabled: form.textFailure === ""
                    isChosen: form.isFromText
                    text: "Reprendre du SKILL.md"
                    onClicked: form.isFromText = !form.isFromText
                }
                Label {
                    color: Colors.secondary
                    font: Typography.small
                    lineHeight: 1.25
                    text: form.textChanges
                    width: parent.width
                    wrapMode: Text.Wrap
                }
            }
        }
        CategoryChoice {
            id: category

            currentID: form.category
            model: sheet.model
            noneText: "Inchangée"
            width: parent.width
            onChosen: id => form.category = id
        }
        MaturityChoice {
            columns: 3
            current: form.maturityChoice
            texts: form.maturityTexts
            width: parent.width
            onChosen: index => form.maturityChoice = index
        }
        TagField {
            label: "Mots-clés à ajouter"
            model: sheet.model
            texts: form.addedTags
            typed: form.typedTag
            unwanted: form.removedTags
            width: parent.width
            onAdded: text => form.addTags(text)
            onEdited: text => form.typedTag = text
            onRemoved: text => form.dropTag(text)
        }
        Field {
            label: "Mots-clés à retirer"
            visible: form.presentTags.length > 0
            width: parent.width

            Flow {
                spacing: Metrics.small - 2
                width: parent.width

                Accessible.name: "Mots-clés à retirer"
                Accessible.role: Accessible.Grouping

                Repeater {
                    model: form.presentTags

                    FilterChip {
                        required property string modelData

                        isChosen: sheet.removedTags.includes(modelData)
                        text: modelData
                        onClicked: form.toggleRemoved(modelData)
                    }
                }
            }
        }
    }
    ErrorPanel {
        text: form.refusal
        width: parent.width
        onDismissed: {
            form.forgetRefusal();
            category.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium

        ActionButton {
            text: "Annuler"
            onClicked: sheet.close()
        }
        ActionButton {
            id: accept

            enabled: sheet.canSave
            role: ActionButton.Primary
            text: "Modifier " + sheet.skills
            onClicked: sheet.submit()
        }
    }
}
