import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A drag of skills to a category of this window or of another: the text that is dragged, and the label at the pointer. */
Item {
    id: carrier

    property string payload
    property bool isHeld: false

    function lift(selection: SkillSelection, skill: skillSummary): void {
        const count = selection.carriedCount(skill.id);
        capsule.text = count === 1 ? skill.displayName : count + " compétences";
        payload = selection.payload(skill.id);
        isHeld = true;
        pause.start();
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

    Timer {
        id: pause

        interval: 20 // until the capsule has the size of its text
        onTriggered: capsule.grabToImage(picture => {
            carrier.Drag.imageSource = picture.url;
            carrier.Drag.active = carrier.isHeld;
        })
    }
    CapsuleMessage {
        id: capsule

        radius: 0 // transparent corners would need a compositor
        text: ""
        visible: false
    }
}
