import QtQuick
import VORNELApp
import VORNELDesignSystem

/** How the file above stands: a text, saved or not, or one that is only looked at; and whether something runs. */
Item {
    id: footer

    required property AppModel model
    required property AssociatedFilePane file

    /** Of what is shown; empty where nothing is chosen. */
    required property string path

    readonly property OpenSkill skill: model.openSkill
    readonly property SkillDraft draft: skill.draft
    readonly property bool isDraft: path === "SKILL.md"
    readonly property bool isText: isDraft || (file.edited.isShown && !file.edited.isReadOnly)
    readonly property bool isSaved: isDraft ? !draft.isTextModified && draft.standing === SkillDraft.Current : !file.edited.isModified

    /** Whether nothing was edited, and the skill that held the text is gone. */
    readonly property bool isLeftBehind: isDraft && draft.standing === SkillDraft.Gone && !draft.isTextModified

    readonly property string standing: {
        if (!isText)
            return file.content.size === "" ? "" : "LECTURE SEULE";
        return isSaved ? "ENREGISTRÉ" : isLeftBehind ? "HORS BIBLIOTHÈQUE" : "MODIFIÉ";
    }
    readonly property string extent: {
        if (isDraft)
            return draft.characterCount + " caractères";
        if (file.edited.isModified)
            return "";
        if (file.content.kind !== SkillFileContent.Text)
            return file.content.size;
        return file.content.lineCount + (file.content.lineCount < 2 ? " ligne, " : " lignes, ") + file.content.size;
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
            tone: !footer.isText ? StatusBadge.Neutral : footer.isSaved ? StatusBadge.Success : StatusBadge.Warning
            visible: text !== ""
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.secondary
            font: Typography.small
            text: "Modifications non enregistrées"
            visible: footer.isText && !footer.isSaved && !footer.isLeftBehind && footer.width > 480 // else the badge says it alone
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
