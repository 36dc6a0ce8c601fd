import QtQuick

/** A line to type in, with its name above and, where there is one, a note below. A problem takes the place of the note. */
FocusScope {
    id: field

    required property string label
    required property string text
    property string hint
    property string note
    property string problem

    /** The user has changed the text. */
    signal edited(text: string)

    implicitHeight: column.height

    Column {
        id: column

        width: parent.width

        Label {
            bottomPadding: Metrics.small
            color: Colors.secondary
            font: Typography.small
            text: field.label

            Accessible.ignored: true
        }
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

            Accessible.description: field.problem === "" ? field.note : field.problem
            Accessible.name: field.label
        }
        Label {
            color: Colors.secondary
            font: Typography.small
            text: field.note
            topPadding: Metrics.tiny + 2
            visible: field.note !== "" && field.problem === ""
            width: parent.width

            Accessible.ignored: true
        }
        Label {
            color: Colors.danger
            font: Typography.small
            text: field.problem
            topPadding: Metrics.tiny + 2
            visible: field.problem !== ""
            width: parent.width
            wrapMode: Text.Wrap

            Accessible.role: Accessible.AlertMessage
        }
    }
}
