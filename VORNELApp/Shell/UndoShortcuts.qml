import QtQuick
import VORNELApp

/**
 * The keys that take back and bring back: in what is typed its edits, also where the desktop has other keys for that;
 * elsewhere the last action.
 */
Item {
    id: shortcuts

    required property AppModel model

    readonly property TextEdit area: Window.activeFocusItem as TextEdit
    readonly property TextInput field: Window.activeFocusItem as TextInput

    Shortcut {
        sequence: "Ctrl+Z"
        onActivated: {
            if (shortcuts.area?.readOnly === false)
                shortcuts.area.undo();
            else if (shortcuts.field?.readOnly === false)
                shortcuts.field.undo();
            else
                shortcuts.model.undo();
        }
    }
    Shortcut {
        sequences: ["Ctrl+Shift+Z", "Ctrl+Y"]
        onActivated: {
            if (shortcuts.area?.readOnly === false)
                shortcuts.area.redo();
            else if (shortcuts.field?.readOnly === false)
                shortcuts.field.redo();
            else
                shortcuts.model.redo();
        }
    }
}
