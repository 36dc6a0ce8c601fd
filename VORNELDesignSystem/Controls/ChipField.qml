import QtQuick

/**
 * Keywords, and a line to type more of them: Enter or a comma adds what is typed, Backspace in the empty line takes the last
 * one away. Suggestions stand below.
 */
Field {
    id: field

    required property var texts

    /** What stands in the line. */
    required property string typed

    property var suggestions: []
    property string hint

    signal edited(text: string)
    signal added(text: string)
    signal removed(text: string)

    function takeKeyboard(): void {
        entry.forceActiveFocus(Qt.TabFocusReason);
    }
    function take(event: var): void {
        event.accepted = typed.trim() !== "";
        if (event.accepted)
            added(typed);
    }

    ChipRow {
        name: field.label
        symbol: "x"
        texts: field.texts
        verb: "Retirer"
        width: parent.width
        onEmptied: field.takeKeyboard()
        onPressed: text => field.removed(text)
    }
    TextEntry {
        id: entry

        focus: true
        isRefused: field.problem !== ""
        placeholderText: field.hint
        text: field.typed
        width: parent.width
        onTextEdited: {
            text.endsWith(",") ? field.added(text) : field.edited(text);
            text = Qt.binding(() => field.typed);
        }

        Accessible.description: field.explanation
        Accessible.name: field.label
        Keys.onEnterPressed: event => field.take(event)
        Keys.onEscapePressed: event => {
            event.accepted = text !== "";
            field.edited("");
        }
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_Backspace && text === "" && field.texts.length > 0;
            if (event.accepted)
                field.removed(field.texts[field.texts.length - 1]);
        }
        Keys.onReturnPressed: event => field.take(event)
    }
    ChipRow {
        name: "Suggestions"
        symbol: "plus"
        texts: field.suggestions
        verb: "Ajouter"
        width: parent.width
        onEmptied: field.takeKeyboard()
        onPressed: text => field.added(text)
    }
}
