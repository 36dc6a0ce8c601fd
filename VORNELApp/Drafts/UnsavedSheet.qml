import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks what becomes of unsaved edits before they are left. */
Sheet {
    id: sheet

    required property AppModel model
    required property string name

    signal saveAsked
    signal discardAsked

    /** Whether the user goes; otherwise closing the sheet is staying. */
    property bool isDecided: false

    /** Whether the user saves, once the sheet is closed. */
    property bool isSaving: false

    firstFocus: save
    /** Does what waited for the decision. */
    function go(): void {
        isDecided = true;
        close();
        model.departure.resume();
    }

    implicitWidth: Math.min(520, parent.width - 2 * Metrics.page)
    title: "Enregistrer les modifications\u00A0?"
    onAboutToHide: {
        if (!isDecided)
            model.departure.stay();
    }
    onAboutToShow: {
        isDecided = false;
        isSaving = false;
    }
    onClosed: if (isSaving) saveAsked()

    Label {
        bottomPadding: Metrics.small
        color: Colors.secondary
        lineHeight: 1.35
        text: "«\u00A0" + sheet.name + "\u00A0» contient des modifications qui ne sont pas enregistrées."
        width: parent.width
        wrapMode: Text.Wrap
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium

        ActionButton {
            text: "Annuler"
            onClicked: sheet.close()
        }
        ActionButton {
            role: ActionButton.Destructive
            text: "Ne pas enregistrer"
            onClicked: sheet.discardAsked()
        }
        ActionButton {
            id: save

            enabled: !sheet.model.isWorking
            role: ActionButton.Primary
            text: "Enregistrer"
            onClicked: {
                sheet.isDecided = true;
                sheet.isSaving = true;
                sheet.close();
            }
        }
    }
}
