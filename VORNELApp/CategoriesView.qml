pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** The sheet of the categories. A category that is refused stays open, with what was typed. */
Sheet {
    id: sheet

    required property AppModel model

    property bool isCreating: false

    function create(): void {
        form.reset();
        isCreating = true;
    }

    title: "Catégories"
    onClosed: isCreating = false

    CategoryForm {
        id: form

        model: sheet.model
        onCreated: sheet.isCreating = false
    }
    ListView {
        id: view

        boundsBehavior: Flickable.StopAtBounds
        clip: true
        height: Math.min(contentHeight, 264)
        interactive: contentHeight > height
        visible: !sheet.isCreating
        width: parent.width

        T.ScrollBar.vertical: ScrollRail {}
        Accessible.name: sheet.title
        Accessible.role: Accessible.List

        delegate: CategoryRow {
            width: view.width - (view.interactive ? Metrics.medium : 0)
        }
        model: CategoryListModel {
            model: sheet.model
        }
    }
    CategoryFields {
        focus: visible
        form: form
        visible: sheet.isCreating
        width: parent.width
    }
    ErrorPanel {
        text: sheet.model.errorMessage
        width: parent.width
        onDismissed: sheet.model.clearError()
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium
        visible: !sheet.isCreating

        ActionButton {
            focus: !sheet.isCreating
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
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium
        visible: sheet.isCreating

        ActionButton {
            text: "Annuler"
            onClicked: sheet.isCreating = false
        }
        ActionButton {
            enabled: form.isValid && !sheet.model.isWorking
            role: ActionButton.Primary
            text: "Créer"
            onClicked: form.submit()
        }
    }
}
