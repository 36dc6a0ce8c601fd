import QtQuick
import VORNELApp

/** The chosen skill or, without one, the screen of the chosen destination. */
ScreenLoader {
    /** A skill that was left while it was still loading doesn't open any more. */
    readonly property bool isSkillOpen: String(model.selectedSkill?.manifest.id) === String(model.selectedSkillID)

    screen: {
        if (isSkillOpen)
            return "SkillEditorView.qml";
        switch (model.selectedDestination) {
        case AppStates.Destination.needsAttention:
            return "NeedsAttentionView.qml";
        case AppStates.Destination.trash:
            return "TrashView.qml";
        default:
            return "LibraryView.qml";
        }
    }
}
