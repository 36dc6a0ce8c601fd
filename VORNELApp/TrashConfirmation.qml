import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks before the selected skills, or one by itself, go to the trash. */
ConfirmationDialog {
    id: confirmation

    required property SkillSelection selection

    property int count

    function askForSelection(): void {
        selection.hold();
        ask();
    }
    function askFor(id: uuid): void {
        selection.holdAlone(id);
        ask();
    }
    function ask(): void {
        count = selection.heldCount();
        subject = selection.heldNames();
        open();
    }

    acceptText: "Placer dans la corbeille"
    isDestructive: true
    message: "Vous pourrez les restaurer depuis la corbeille."
    title: count === 1 ? "Placer cette compétence dans la corbeille ?" : "Placer " + count + " compétences dans la corbeille ?"
    onAccepted: selection.trash()
}
