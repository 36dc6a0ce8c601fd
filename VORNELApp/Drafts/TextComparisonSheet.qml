import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Shows line by line in what the text that is edited differs from the one on the disk. */
Sheet {
    id: sheet

    required property AppModel model

    function compare(): void {
        comparison.compareText("SKILL.md", model.openSkill.draft.text);
        open();
    }

    firstFocus: closing
    implicitWidth: Math.min(840, (parent?.width ?? 0) - 2 * Metrics.page)
    title: "Votre texte et celui du disque"

    Label {
        color: Colors.secondary
        lineHeight: 1.35
        text: "Ce qui est marqué + n’est que dans votre texte, ce qui est marqué − n’est que sur le disque."
        width: parent.width
        wrapMode: Text.Wrap
    }
    DifferentLines {
        comparison: comparison
        height: Math.max(200, (sheet.parent?.height ?? 0) - 340)
        width: parent.width
    }
    FileComparison {
        id: comparison

        model: sheet.model
        skillID: sheet.model.selectedSkillID
    }
    ActionButton {
        id: closing

        anchors.right: parent.right
        text: "Fermer"
        onClicked: sheet.close()
    }
}
