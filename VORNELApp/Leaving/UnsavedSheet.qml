import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks what becomes of unsaved edits, of the text or of the properties, before they are left; to close it is to stay. */
Sheet {
    id: sheet

    required property AppModel model
    required property PropertyForm properties

    readonly property OpenSkill skill: model.openSkill
    readonly property Departure departure: model.departure
    readonly property bool isAsked: skill.state === OpenSkill.Leaving || (departure.isPending && properties.isModified)

    /** Of what they are edits, where they aren't those of the text alone. */
    readonly property string edited: {
        if (!properties.isModified)
            return "";
        return skill.draft.isModified ? "du texte et des propriétés" : "de ses propriétés";
    }

    /** The properties could not be saved, so that the user stays. */
    signal propertiesRefused

    /** Whether the user saves, once the sheet is closed. */
    property bool isSaving: false

    /** Whether the properties are being saved, which the text waits for. */
    property bool isSavingProperties: false

    function saveAll(): void {
        if (!properties.isModified)
            return saveText();
        isSavingProperties = true;
        properties.submit();
        if (properties.isModified && !properties.isWaiting) // it can't be saved now, or as it is
            giveUp();
    }
    function giveUp(): void {
        isSavingProperties = false;
        departure.stay();
        propertiesRefused();
    }
    function saveText(): void {
        if (skill.draft.isModified)
            skill.save();
        else
            departure.resume();
    }
    function discard(): void {
        properties.reset();
        if (skill.draft.isModified)
            skill.discardAndLeave();
        else
            departure.resume();
    }

    firstFocus: save
    implicitWidth: Math.min(520, parent.width - 2 * Metrics.page)
    title: "Enregistrer les modifications\u00A0?"
    onAboutToHide: {
        if (isAsked && !isSaving)
            departure.stay();
    }
    onAboutToShow: isSaving = false
    onClosed: {
        if (!isSaving)
            return;
        isSaving = false;
        saveAll();
    }
    onIsAskedChanged: {
        if (!isAsked)
            close();
        else if (!isSaving)
            open();
    }

    Connections {
        function onAccepted() {
            if (sheet.isSavingProperties)
                sheet.saveText();
            else if (sheet.departure.isPending && !sheet.isAsked)
                sheet.departure.resume(); // nothing is left to be asked about
            sheet.isSavingProperties = false;
        }

        function onRefusalChanged() {
            if (sheet.isSavingProperties && sheet.properties.refusal !== "")
                sheet.giveUp();
        }

        target: sheet.properties
    }
    Label {
        bottomPadding: Metrics.small
        color: Colors.secondary
        lineHeight: 1.35
        text: "«\u00A0" + (sheet.model.selectedSkill?.manifest.displayName ?? "") + "\u00A0» contient des modifications"
              + (sheet.edited === "" ? "" : " " + sheet.edited) + " qui ne sont pas enregistrées."
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
            onClicked: sheet.discard()
        }
        ActionButton {
            id: save

            enabled: !sheet.model.isWorking
            role: ActionButton.Primary
            text: "Enregistrer"
            onClicked: {
                sheet.isSaving = true;
                sheet.close();
            }
        }
    }
}
