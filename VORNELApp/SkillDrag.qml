import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Skills on their way to a category of this window or another's: a text, and a capsule at the pointer. */
Item {
    id: carrier

    property string payload
    property bool isHeld: false

    function lift(selection: SkillSelection, skill: skillSummary): void {
        const count = selection.carriedCount(skill.id);
        capsule.text = count === 1 ? skill.displayName : count + " compétences";
        payload = selection.payload(skill.id);
        isHeld = true;
        capsule.grabToImage(picture => {
            Drag.imageSource = picture.url;
            Drag.active = isHeld;
        });
    }
    function letGo(): void {
        isHeld = false;
        Drag.active = false;
    }

    Drag.dragType: Drag.Automatic
    Drag.hotSpot: Qt.point(-Metrics.medium, -Metrics.medium)
    Drag.mimeData: { "text/plain": payload }
    Drag.supportedActions: Qt.CopyAction | Qt.MoveAction
    Drag.onDragFinished: letGo()

    CapsuleMessage {
        id: capsule

        text: ""
        visible: false
    }
}
