import QtQuick
import VORNELApp

/** The chosen skill or, without one, the screen of the chosen destination. */
ScreenLoader {
    screen: {
        if (model.selectedSkill !== undefined)
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
