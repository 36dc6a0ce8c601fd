pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A maturity to choose, with its name above. */
Column {
    id: choice

    required property CreateSkillForm form

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

        Repeater {
            model: choice.form.maturityTexts

            ChoiceButton {
                required property int index
                required property string modelData

                isChosen: choice.form.maturity === index
                text: modelData
                width: (choice.width - Metrics.small) / 2
                onClicked: choice.form.maturity = index
            }
        }
    }
}
