pragma ComponentBehavior: Bound

import QtQuick
import VORNELDesignSystem

/** A maturity to choose, with its name above. It is one stop of Tab; the arrows choose. */
Column {
    id: choice

    required property var texts

    /** The number of the one that is chosen. */
    required property int current

    property int columns: 2

    signal chosen(index: int)

    /** Chooses the maturity so many places further on, and gives it the keyboard. */
    function step(places: int): void {
        const next = Math.max(0, Math.min(choices.count - 1, current + places));
        choices.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
        chosen(next);
    }

    spacing: Metrics.small

    Accessible.name: "Maturité"
    Accessible.role: Accessible.Grouping

    Label {
        color: Colors.secondary
        font: Typography.small
        text: "Maturité"

        Accessible.ignored: true
    }
    Grid {
        columns: choice.columns
        spacing: Metrics.small
        width: parent.width

        Keys.onDownPressed: choice.step(1)
        Keys.onLeftPressed: choice.step(-1)
        Keys.onRightPressed: choice.step(1)
        Keys.onUpPressed: choice.step(-1)

        Repeater {
            id: choices

            model: choice.texts

            ChoiceButton {
                required property int index
                required property string modelData

                focusPolicy: isChosen ? Qt.StrongFocus : Qt.ClickFocus
                isChosen: choice.current === index
                text: modelData
                width: (choice.width - (choice.columns - 1) * Metrics.small) / choice.columns
                onClicked: choice.chosen(index)
            }
        }
    }
}
