import QtQuick
import VORNELApp
import VORNELDesignSystem

/** One slug under which the assistants hold different content, and the choice between the two. */
Item {
    id: row

    required property importCollision collision

    /** The user picks a side. */
    signal chosen(choice: int)

    /** The user wants to see both. */
    signal comparisonAsked

    function focusChoice(): void {
        claude.forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: Metrics.rowHeight

    Accessible.name: collision.slug
    Accessible.role: Accessible.Grouping

    Label {
        anchors.left: parent.left
        anchors.right: choices.left
        anchors.rightMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        font: Typography.control
        text: row.collision.slug
    }
    Row {
        id: choices

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small

        ActionButton {
            id: compare

            KeyNavigation.right: claude
            isFlat: true
            Keys.onLeftPressed: {} // which would turn the page
            text: "Comparer…"

            Accessible.description: row.collision.slug
            onClicked: row.comparisonAsked()
        }
        ChoiceButton {
            id: claude

            KeyNavigation.left: compare
            KeyNavigation.right: codex
            isChosen: row.collision.choice === Vornel.CollisionChoice.claude
            text: "Claude"
            onClicked: row.chosen(Vornel.CollisionChoice.claude)
        }
        ChoiceButton {
            id: codex

            KeyNavigation.left: claude
            isChosen: row.collision.choice === Vornel.CollisionChoice.codex
            Keys.onRightPressed: {}
            text: "Codex"
            onClicked: row.chosen(Vornel.CollisionChoice.codex)
        }
    }
}
