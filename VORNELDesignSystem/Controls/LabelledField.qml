import QtQuick

/** A line to type in. */
Field {
    id: field

    required property string text
    property string hint

    /** The user has changed the text. */
    signal edited(text: string)

    TextEntry {
        focus: true
        isRefused: field.problem !== ""
        placeholderText: field.hint
        text: field.text
        width: parent.width
        onTextEdited: {
            field.edited(text);
            text = Qt.binding(() => field.text);
        }

        Accessible.description: field.explanation
        Accessible.name: field.label
    }
}
