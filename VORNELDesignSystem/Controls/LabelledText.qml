import QtQuick

/** A text without line breaks, which is shown on as many lines as it needs; Up and Down lead from one to another. */
Field {
    id: field

    required property string text
    property string hint

    /** The user has changed the text. */
    signal edited(text: string)

    /** Leads the cursor so many lines further, unless there is no such line. */
    function move(event: var, lines: int): void {
        const y = entry.cursorRectangle.y + (lines + 0.5) * entry.cursorRectangle.height;
        event.accepted = y > entry.topPadding && y < entry.topPadding + entry.contentHeight;
        if (!event.accepted)
            return;
        const place = entry.positionAt(entry.cursorRectangle.x, y);
        if (event.modifiers & Qt.ShiftModifier)
            entry.moveCursorSelection(place);
        else
            entry.cursorPosition = place;
    }

    TextEntry {
        id: entry

        bottomPadding: Metrics.small
        focus: true
        implicitHeight: Math.max(Metrics.controlHeight, contentHeight + topPadding + bottomPadding)
        isRefused: field.problem !== ""
        placeholderText: field.hint
        text: field.text
        topPadding: Metrics.small
        width: parent.width
        wrapMode: TextInput.Wrap
        onTextEdited: {
            field.edited(text);
            text = Qt.binding(() => field.text);
        }

        Accessible.description: field.explanation
        Accessible.name: field.label
        Keys.onDownPressed: event => field.move(event, 1)
        Keys.onUpPressed: event => field.move(event, -1)
    }
}
