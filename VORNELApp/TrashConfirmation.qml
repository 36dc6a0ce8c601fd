import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks before the selected skills, or one by itself, go to the trash. */
ConfirmationDialog {
    id: confirmation

    required property SkillSelection selection

    property int count
    property var aloneID
    property bool isAlone

    function askForSelection(): void {
        isAlone = false;
        selection.hold();
        count = selection.count;
        open();
    }
    function askFor(id: uuid): void {
        isAlone = true;
        aloneID = id;
        count = 1;
        open();
    }

    acceptText: "Placer dans la corbeille"
    isDestructive: true
    message: "Vous pourrez les restaurer depuis la corbeille."
    title: count === 1 ? "Placer cette compétence dans la corbeille ?" : "Placer " + count + " compétences dans la corbeille ?"
    onAccepted: {
        if (isAlone)
            selection.trashAlone(aloneID);
        else
            selection.trash();
    }
}
