import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Shows in what a skill that is to be added differs from the library's, and lets the user keep one of them. */
Sheet {
    id: sheet

    required property AppModel model
    property skillAddition addition

    /** Where it stands among those that differ. */
    property int row: -1

    /** The user picks a side. */
    signal chosen(choice: int)

    function compare(addition: skillAddition, row: int): void {
        sheet.addition = addition;
        sheet.row = row;
        sides.look(addition);
        files.currentIndex = 0;
        files.show();
        open();
    }
    function keep(choice: int): void {
        chosen(choice);
        close();
    }

    firstFocus: files.list
    implicitWidth: Math.min(1040, (parent?.width ?? 0) - 2 * Metrics.page)
    title: "Les deux contenus de «\u00A0" + addition.slug + "\u00A0»"

    AdditionComparison {
        id: sides

        model: sheet.model
    }
    FileComparison {
        id: lines

        model: sheet.model
        skillID: sides.skillID
    }
    Label {
        id: legend

        color: Colors.secondary
        lineHeight: 1.35
        text: "Ce qui est marqué − n’est que dans la bibliothèque, ce qui est marqué + n’est que dans la nouvelle compétence."
        width: parent.width
        wrapMode: Text.Wrap
    }
    Row {
        height: Math.max(120, Math.round((sheet.parent?.height ?? 0) - legend.height) - 280)
        spacing: Metrics.medium
        width: parent.width

        DifferentFiles {
            id: files

            height: parent.height
            model: sides.files
            width: Math.min(300, parent.width / 3)
            onChosen: (target, path) => lines.compareAdded(sheet.addition, path)
        }
        DifferentLines {
            comparison: lines
            height: parent.height
            width: parent.width - files.width - parent.spacing
        }
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.small

        ActionButton {
            text: "Fermer"
            onClicked: sheet.close()
        }
        ChoiceButton {
            isChosen: sheet.addition.choice === Vornel.AdditionChoice.library
            text: "Garder la mienne"
            onClicked: sheet.keep(Vornel.AdditionChoice.library)
        }
        ChoiceButton {
            isChosen: sheet.addition.choice === Vornel.AdditionChoice.added
            text: "Prendre la nouvelle"
            onClicked: sheet.keep(Vornel.AdditionChoice.added)
        }
    }
}
