import QtQuick
import VORNELApp
import VORNELDesignSystem

/** How the draft stands: saved or not, how long, and whether something runs. */
Item {
    id: footer

    required property AppModel model
    required property SkillDraft draft

    /** Whether nothing was edited, and the skill that held the text is gone. */
    readonly property bool isLeftBehind: draft.standing === SkillDraft.Gone && !draft.isModified

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
            text: footer.draft.isSaved ? "ENREGISTRÉ" : footer.isLeftBehind ? "HORS BIBLIOTHÈQUE" : "MODIFIÉ"
            tone: footer.draft.isSaved ? StatusBadge.Success : StatusBadge.Warning
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.secondary
            font: Typography.small
            text: "Modifications non enregistrées"
            visible: !footer.draft.isSaved && !footer.isLeftBehind
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
            visible: footer.model.isWorking || footer.draft.isUnderWay
        }
        Label {
            color: Colors.secondary
            font: Typography.small
            text: footer.draft.characterCount + " caractères"
        }
    }
}
