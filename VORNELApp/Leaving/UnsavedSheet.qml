import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks what becomes of unsaved edits before they are left; to close it is to stay. */
Sheet {
    id: sheet

    required property AppModel model

    readonly property OpenSkill skill: model.openSkill

    /** Whether the user saves, once the sheet is closed. */
    property bool isSaving: false

    firstFocus: save
    implicitWidth: Math.min(520, parent.width - 2 * Metrics.page)
    title: "Enregistrer les modifications\u00A0?"
    onAboutToHide: {
        if (skill.state === OpenSkill.Leaving && !isSaving)
            skill.stay();
    }
    onAboutToShow: isSaving = false
    onClosed: {
        if (!isSaving)
            return;
        isSaving = false;
        skill.save();
    }

    Connections {
        function onStateChanged() {
            if (sheet.skill.state !== OpenSkill.Leaving)
                sheet.close();
            else if (!sheet.isSaving)
                sheet.open();
        }

        target: sheet.skill
    }
    Label {
        bottomPadding: Metrics.small
        color: Colors.secondary
        lineHeight: 1.35
        text: "«\u00A0" + (sheet.model.selectedSkill?.manifest.displayName ?? "")
              + "\u00A0» contient des modifications qui ne sont pas enregistrées."
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
            onClicked: sheet.skill.discardAndLeave()
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
