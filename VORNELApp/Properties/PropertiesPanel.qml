import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The properties of the skill that is edited, beside its text. Enter in a field saves them. */
Surface {
    id: panel

    required property AppModel model
    required property PropertyForm form

    readonly property bool canSave: form.isModified && form.isValid && fields.hasRoom && !form.isWaiting && !model.isWorking

    signal closingAsked

    function takeKeyboard(): void {
        fields.takeKeyboard();
    }
    function save(): void {
        if (canSave)
            form.submit();
    }

    Accessible.name: "Propriétés"
    Accessible.role: Accessible.Pane
    Keys.onEnterPressed: save()
    Keys.onReturnPressed: save()

    PaneHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        text: "PROPRIÉTÉS"
    }
    ActionButton {
        anchors.right: header.right
        anchors.rightMargin: Metrics.tiny
        anchors.verticalCenter: header.verticalCenter
        isCompact: true
        symbol: "x"
        text: "Fermer les propriétés"
        onClicked: panel.closingAsked()
    }
    PropertyFields {
        id: fields

        anchors.bottom: notices.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        form: panel.form
        model: panel.model
    }
    Column {
        id: notices

        anchors.bottom: actions.top
        anchors.bottomMargin: height > 0 ? Metrics.medium : 0
        anchors.left: parent.left
        anchors.leftMargin: Metrics.medium
        anchors.right: parent.right
        anchors.rightMargin: Metrics.medium
        spacing: Metrics.small

        Notice {
            text: "Modifié aussi ailleurs\u00A0: " + panel.form.overtaken + ". Enregistrer garde ce que vous avez saisi."
            visible: panel.form.overtaken !== ""
            width: parent.width
        }
        Notice {
            text: panel.form.refusal + (panel.form.isOutdated ? " Votre saisie est gardée\u00A0: vérifiez-la, puis enregistrez de nouveau." : "")
            tone: Colors.danger
            visible: panel.form.refusal !== "" && panel.form.slugProblem === "" // which is told at the field
            width: parent.width
        }
    }
    Item {
        id: actions

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        implicitHeight: Metrics.controlHeight + 2 * Metrics.medium

        Rectangle {
            color: Colors.line
            height: Metrics.hairline
            width: parent.width
        }
        ActionButton {
            anchors.left: parent.left
            anchors.leftMargin: Metrics.medium
            anchors.right: undo.left
            anchors.rightMargin: Metrics.small
            anchors.verticalCenter: parent.verticalCenter
            enabled: panel.canSave
            symbol: "save"
            text: "Enregistrer les propriétés"
            onClicked: {
                panel.save();
                panel.takeKeyboard(); // as the button goes grey
            }
        }
        ActionButton {
            id: undo

            anchors.right: parent.right
            anchors.rightMargin: Metrics.medium
            anchors.verticalCenter: parent.verticalCenter
            enabled: panel.form.isModified && !panel.form.isWaiting
            isCompact: true
            symbol: "undo-2"
            text: "Reprendre les propriétés enregistrées"
            onClicked: {
                panel.form.reset();
                panel.takeKeyboard();
            }
        }
    }
}
