import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Shows in what the two versions of a collision differ, and lets the user keep one of them. */
Sheet {
    id: sheet

    required property AppModel model
    property importCollision collision

    /** The user picks a side. */
    signal chosen(choice: int)

    function compare(collision: importCollision): void {
        sheet.collision = collision;
        sides.look(collision.slug);
        open();
    }
    function keep(choice: int): void {
        chosen(choice);
        close();
    }

    firstFocus: files.list
    implicitWidth: Math.min(1040, (parent?.width ?? 0) - 2 * Metrics.page)
    title: "Les deux versions de «\u00A0" + collision.slug + "\u00A0»"

    CollisionComparison {
        id: sides

        model: sheet.model
        onChanged: {
            files.currentIndex = 0;
            files.show();
        }
    }
    Row {
        id: choices

        readonly property real sideWidth: (width - spacing) / 2

        spacing: Metrics.medium
        width: parent.width

        CollisionSide {
            folder: sides.claude
            isChosen: sheet.collision.choice === Vornel.CollisionChoice.claude
            isKnown: sides.isKnown
            width: choices.sideWidth
            onChosen: sheet.keep(Vornel.CollisionChoice.claude)
        }
        CollisionSide {
            folder: sides.codex
            isChosen: sheet.collision.choice === Vornel.CollisionChoice.codex
            isKnown: sides.isKnown
            width: choices.sideWidth
            onChosen: sheet.keep(Vornel.CollisionChoice.codex)
        }
    }
    Label {
        id: legend

        color: sides.problem === "" ? Colors.secondary : Colors.danger
        lineHeight: 1.35
        text: sides.problem !== "" ? "Les deux versions n’ont pas pu être comparées. " + sides.problem
                                   : "Ce qui est marqué − n’est que chez Claude, ce qui est marqué + n’est que chez Codex."
        width: parent.width
        wrapMode: Text.Wrap
    }
    Row {
        height: Math.max(120, Math.round((sheet.parent?.height ?? 0) - choices.height - legend.height) - 290)
        spacing: Metrics.medium
        width: parent.width

        DifferentFiles {
            id: files

            height: parent.height
            model: sides.files
            width: Math.min(300, parent.width / 3)
            onChosen: (target, path) => lines.compareTargets(sheet.collision.slug, path)
        }
        DifferentLines {
            comparison: lines
            height: parent.height
            width: parent.width - files.width - parent.spacing
        }
    }
    FileComparison {
        id: lines

        model: sheet.model
    }
    ActionButton {
        anchors.right: parent.right
        text: "Fermer"
        onClicked: sheet.close()
    }
}
