import QtQuick
import VORNELApp
import VORNELDesignSystem

/** How the text above stands: the draft, saved or not, or a file that is only looked at; and whether something runs. */
Item {
    id: footer

    required property AppModel model
    required property SkillFileContent file

    /** Of what is shown; empty where nothing is chosen. */
    required property string path

    readonly property OpenSkill skill: model.openSkill
    readonly property SkillDraft draft: skill.draft
    readonly property bool isDraft: path === "SKILL.md"

    /** Whether nothing was edited, and the skill that held the text is gone. */
    readonly property bool isLeftBehind: draft.standing === SkillDraft.Gone && !draft.isModified

    readonly property string standing: {
        if (!isDraft)
            return file.size === "" ? "" : "LECTURE SEULE";
        return draft.isSaved ? "ENREGISTRÉ" : isLeftBehind ? "HORS BIBLIOTHÈQUE" : "MODIFIÉ";
    }
    readonly property string extent: {
        if (isDraft)
            return draft.characterCount + " caractères";
        if (file.kind !== SkillFileContent.Text)
            return file.size;
        return file.lineCount + (file.lineCount < 2 ? " ligne, " : " lignes, ") + file.size;
    }

    implicitHeight: 40

    Rectangle {
        color: Colors.line
        height: Metrics.hairline
        width: parent.width
    }
    Row {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.medium

        StatusBadge {
            anchors.verticalCenter: parent.verticalCenter
            text: footer.standing
            tone: !footer.isDraft ? StatusBadge.Neutral : footer.draft.isSaved ? StatusBadge.Success : StatusBadge.Warning
            visible: text !== ""
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.secondary
            font: Typography.small
            text: "Modifications non enregistrées"
            visible: footer.isDraft && !footer.draft.isSaved && !footer.isLeftBehind && footer.width > 480 // else the badge says it alone
        }
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.large

        Label {
            color: Colors.accent
            font: Typography.small
            text: "Opération en cours"
            visible: footer.model.isWorking || footer.skill.state === OpenSkill.Saving
        }
        Label {
            color: Colors.secondary
            font: Typography.small
            text: footer.extent
        }
    }
}
