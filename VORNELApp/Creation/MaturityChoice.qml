pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A maturity to choose, with its name above. It is one stop of Tab; the arrows choose. */
Column {
    id: choice

    required property CreateSkillForm form

    /** Chooses the maturity so many places further on, and gives it the keyboard. */
    function step(places: int): void {
        const next = Math.max(0, Math.min(choices.count - 1, form.maturity + places));
        choices.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
        form.maturity = next;
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
        columns: 2
        spacing: Metrics.small
        width: parent.width

        Keys.onDownPressed: choice.step(1)
        Keys.onLeftPressed: choice.step(-1)
        Keys.onRightPressed: choice.step(1)
        Keys.onUpPressed: choice.step(-1)

        Repeater {
            id: choices

            model: choice.form.maturityTexts

            ChoiceButton {
                required property int index
                required property string modelData

                focusPolicy: isChosen ? Qt.StrongFocus : Qt.ClickFocus
                isChosen: choice.form.maturity === index
                text: modelData
                width: (choice.width - Metrics.small) / 2
                onClicked: choice.form.maturity = index
            }
        }
    }
}
