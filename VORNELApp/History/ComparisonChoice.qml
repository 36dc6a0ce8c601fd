import QtQuick
import VORNELDesignSystem

/** With what a version is compared. It is one stop of Tab; the arrows choose. */
Row {
    id: choice

    required property bool isSinceFormer

    signal chosen(isSinceFormer: bool)

    function choose(isSinceFormer: bool): void {
        (isSinceFormer ? former : now).forceActiveFocus(Qt.TabFocusReason);
        chosen(isSinceFormer);
    }

    spacing: Metrics.small

    Accessible.name: "Comparer"
    Accessible.role: Accessible.Grouping
    Keys.onLeftPressed: choose(false)
    Keys.onRightPressed: choose(true)

    ChoiceButton {
        id: now

        focusPolicy: isChosen ? Qt.StrongFocus : Qt.ClickFocus
        isChosen: !choice.isSinceFormer
        text: "Jusqu’à maintenant"
        onClicked: choice.chosen(false)
    }
    ChoiceButton {
        id: former

        focusPolicy: isChosen ? Qt.StrongFocus : Qt.ClickFocus
        isChosen: choice.isSinceFormer
        text: "Depuis la précédente"
        onClicked: choice.chosen(true)
    }
}
