import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks before the skills that a selection holds go to the trash. */
ConfirmationDialog {
    id: confirmation

    required property SkillSelection selection

    property int count

    function ask(): void {
        count = selection.heldCount();
        subject = selection.heldNames();
        if (count > 0) // they may be gone by now
            open();
    }

    acceptText: "Placer dans la corbeille"
    isDestructive: true
    message: "Vous pourrez les restaurer depuis la corbeille."
    title: count === 1 ? "Placer cette compétence dans la corbeille ?" : "Placer " + count + " compétences dans la corbeille ?"
    onAccepted: selection.trash()
}
