pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The chosen skill or, without one, the screen of the chosen destination. */
FocusScope {
    id: content

    required property AppModel model

    Loader {
        anchors.fill: parent
        focus: true
        sourceComponent: {
            if (content.model.selectedSkill !== undefined)
                return skill;
            switch (content.model.selectedDestination) {
            case AppStates.Destination.needsAttention:
                return attention;
            case AppStates.Destination.trash:
                return trash;
            default:
                return library;
            }
        }
    }
    Component {
        id: skill

        SkillEditorView {
            model: content.model
        }
    }
    Component {
        id: library

        LibraryView {
            model: content.model
        }
    }
    Component {
        id: attention

        NeedsAttentionView {
            model: content.model
        }
    }
    Component {
        id: trash

        TrashView {
            model: content.model
        }
    }
}
