import QtQuick
import VORNELApp

/** The screen of the chosen destination and, over it, the chosen skill; the screen keeps its place below. */
FocusScope {
    id: content

    required property AppModel model

    /** A skill that was left while it was still loading doesn't open any more. */
    readonly property bool isSkillOpen: !model.isDetailLoading && String(model.selectedSkill?.manifest.id) === String(model.selectedSkillID)

    /** The open skill's editor, or null. Its type isn't named, for its file is read when it is first wanted. */
    readonly property var editor: skill.item

    /** The screen of the destination, likewise. */
    readonly property var screen: screens.item

    signal creationAsked
    signal importAsked

    function takeKeyboard(): void {
        (isSkillOpen ? skill : screens).forceActiveFocus();
    }

    /** Brings the keyboard to the first of the skills listed, if there is one. */
    function enterResults(): void {
        screen.enterResults();
    }

    ScreenLoader {
        id: screens

        anchors.fill: parent
        focus: !content.isSkillOpen
        model: content.model
        screen: {
            switch (content.model.selectedDestination) {
            case AppStates.Destination.needsAttention:
                return "NeedsAttentionView.qml";
            case AppStates.Destination.trash:
                return "TrashView.qml";
            default:
                return "DeferredLibrary.qml";
            }
        }
        visible: !content.isSkillOpen
    }
    Connections {
        function onCreationAsked() {
            content.creationAsked();
        }

        function onImportAsked() {
            content.importAsked();
        }

        ignoreUnknownSignals: true
        target: screens.item
    }
    ScreenLoader {
        id: skill

        anchors.fill: parent
        focus: content.isSkillOpen
        model: content.model
        screen: content.isSkillOpen ? "SkillEditorView.qml" : ""
    }
}
