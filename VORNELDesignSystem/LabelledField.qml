import QtQuick

/** A line to type in, with its name above. */
FocusScope {
    id: field

    required property string label
    required property string text
    property string hint

    /** The user has changed the text. */
    signal edited(text: string)

    implicitHeight: name.height + Metrics.small + entry.height

    Label {
        id: name

        color: Colors.secondary
        font: Typography.small
        text: field.label

        Accessible.ignored: true
    }
    TextEntry {
        id: entry

        anchors.bottom: parent.bottom
        focus: true
        placeholderText: field.hint
        text: field.text
        width: parent.width
        onTextEdited: {
            field.edited(text);
            text = Qt.binding(() => field.text);
        }

        Accessible.name: field.label
    }
}
