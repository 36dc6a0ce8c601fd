import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A skill that the library has with another content, and the choice between the two. */
Item {
    id: row

    required property skillAddition addition

    /** The user picks a side. */
    signal chosen(choice: int)

    /** The user wants to see both. */
    signal comparisonAsked

    function focusChoice(): void {
        library.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: Metrics.rowHeight

    Accessible.name: addition.slug
    Accessible.role: Accessible.Grouping

    Label {
        anchors.left: parent.left
        anchors.right: choices.left
        anchors.rightMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        font: Typography.control
        text: row.addition.slug
    }
    Row {
        id: choices

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small

        ActionButton {
            id: compare

            KeyNavigation.right: library
            isFlat: true
            text: "Comparer…"

            Accessible.description: row.addition.slug
            onClicked: row.comparisonAsked()
        }
        ChoiceButton {
            id: library

            KeyNavigation.left: compare
            KeyNavigation.right: added
            isChosen: row.addition.choice === Vornel.AdditionChoice.library
            text: "Garder la mienne"
            onClicked: row.chosen(Vornel.AdditionChoice.library)
        }
        ChoiceButton {
            id: added

            KeyNavigation.left: library
            isChosen: row.addition.choice === Vornel.AdditionChoice.added
            text: "Prendre la nouvelle"
            onClicked: row.chosen(Vornel.AdditionChoice.added)
        }
    }
}
