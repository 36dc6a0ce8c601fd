import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The sheet of the categories: all of them, or the form of one. What is refused stays, with what was typed. */
Sheet {
    id: sheet

    required property AppModel model

    property bool isEditing: false

    readonly property real longestList: parent.height - 300
    readonly property bool canSubmit: form.isValid && (form.isNew || form.isModified) && !model.isWorking

    /** Gives the keyboard to what is shown. */
    function beginAgain(): void {
        (isEditing ? fields : list).forceActiveFocus(Qt.OtherFocusReason);
    }
    function create(): void {
        form.editNew(CategoryPalette.colors[0].hex);
        isEditing = true;
        fields.begin();
    }
    function edit(category: skillCategory): void {
        form.edit(category);
        isEditing = true;
        fields.begin();
    }
    function showList(): void {
        form.forgetRefusal();
        isEditing = false;
        beginAgain();
    }
    function leave(): void {
        if (!form.isWaiting)
            model.departure.leave(Departure.FromForm);
    }
    function askToDelete(category: skillCategory): void {
        if (category.isProtected || model.isWorking)
            return;
        form.edit(category);
        deletion.open();
    }

    firstFocus: list
    implicitWidth: Math.min(560, parent.width - 2 * Metrics.page)
    isGuarded: isEditing || form.isWaiting
    title: "Catégories"
    onClosed: isEditing = false
    onDepartureAsked: leave()
    onSubmitted: if (isEditing && canSubmit) form.submit()

    CategoryForm {
        id: form

        model: sheet.model
        onAccepted: {
            if (sheet.isEditing && form.isNew)
                sheet.close();
            else
                sheet.showList();
        }
    }
    Connections {
        function onLeft(exit: int) {
            if (exit === Departure.FromForm && sheet.isUsed)
                sheet.showList();
        }

        target: sheet.model.departure
    }
    DepartureGuard {
        departure: sheet.model.departure
        isActive: sheet.isUsed && sheet.isEditing && form.isModified
        onAsked: discarding.open()
    }
    DiscardQuestion {
        id: discarding

        departure: sheet.model.departure
        onAccepted: {
            sheet.showList();
            departure.resume();
        }
    }
    DeleteCategoryQuestion {
        id: deletion

        form: form
    }
    CategoryList {
        id: list

        appModel: sheet.model
        height: Math.min(contentHeight, sheet.longestList)
        visible: !sheet.isEditing
        width: parent.width
        onChosen: category => sheet.edit(category)
        onDeletionAsked: category => sheet.askToDelete(category)
    }
    CategoryFields {
        id: fields

        form: form
        visible: sheet.isEditing
        width: parent.width
    }
    ErrorPanel {
        text: form.nameProblem === "" ? form.refusal : ""
        width: parent.width
        onDismissed: {
            form.forgetRefusal();
            sheet.beginAgain();
        }
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium
        visible: !sheet.isEditing

        ActionButton {
            enabled: !form.isWaiting
            text: "Fermer"
            onClicked: sheet.close()
        }
        ActionButton {
            enabled: !sheet.model.isWorking
            role: ActionButton.Primary
            symbol: "plus"
            text: "Nouvelle"
            onClicked: sheet.create()
        }
    }
    Item {
        implicitHeight: actions.height + Metrics.small
        visible: sheet.isEditing
        width: parent.width

        ActionButton {
            anchors.bottom: parent.bottom
            enabled: !sheet.model.isWorking
            role: ActionButton.Destructive
            symbol: "trash-2"
            text: "Supprimer"
            visible: !form.isNew && !form.original.isProtected
            onClicked: deletion.open()
        }
        Row {
            id: actions

            anchors.bottom: parent.bottom
            anchors.right: parent.right
            spacing: Metrics.medium

            ActionButton {
                enabled: !form.isWaiting
                text: "Annuler"
                onClicked: sheet.leave()
            }
            ActionButton {
                enabled: sheet.canSubmit
                role: ActionButton.Primary
                text: form.isNew ? "Créer" : "Enregistrer"
                onClicked: form.submit()
            }
        }
    }
}
