pragma ComponentBehavior: Bound

import QtQuick

/**
 * Keywords to press, on as many lines as they need. They are one stop of Tab; the arrows lead from one to another. Where
 * pressing one takes it away, the keyboard goes to the one that follows, or else `emptied` is sent.
 */
Flow {
    id: row

    required property string name
    required property var texts

    /** What pressing one does, for assistive tools: "Ajouter" is told as "Ajouter audit". */
    required property string verb
    required property string symbol

    /** Which one Tab leads to. */
    property int current: 0

    signal pressed(text: string)
    signal emptied

    function focusAt(index: int): void {
        const chip = chips.itemAt(Math.max(0, Math.min(index, chips.count - 1)));
        if (chip === null)
            emptied();
        else
            chip.forceActiveFocus(Qt.TabFocusReason);
    }
    /** The chips are made anew where their texts have changed. */
    function press(index: int, text: string): void {
        const hadKeyboard = activeFocusOn(index);
        pressed(text);
        if (hadKeyboard)
            focusAt(index);
    }
    function activeFocusOn(index: int): bool {
        return chips.itemAt(index)?.activeFocus ?? false;
    }

    spacing: Metrics.small - 2
    visible: chips.count > 0

    Accessible.name: name
    Accessible.role: Accessible.List
    Keys.onDownPressed: focusAt(current + 1)
    Keys.onLeftPressed: focusAt(current - 1)
    Keys.onRightPressed: focusAt(current + 1)
    Keys.onUpPressed: focusAt(current - 1)

    Repeater {
        id: chips

        model: row.texts

        Chip {
            required property int index
            required property string modelData

            focusPolicy: index === Math.min(row.current, chips.count - 1) ? Qt.StrongFocus : Qt.ClickFocus
            symbol: row.symbol
            text: modelData

            Accessible.name: row.verb + " " + text
            onActiveFocusChanged: if (activeFocus) row.current = index
            onClicked: row.press(index, text)
        }
    }
}
