import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Tells that the skill was changed or removed elsewhere while it is edited here, and what can be done. */
Rectangle {
    id: notice

    required property SkillDraft draft

    readonly property bool isGone: draft.standing === SkillDraft.Gone

    implicitHeight: visible ? Math.max(line.height, actions.height) + 2 * Metrics.small : 0
    border.color: Colors.warning
    border.width: Metrics.hairline
    color: Colors.tint(Colors.warning)
    radius: Metrics.controlRadius
    visible: draft.standing !== SkillDraft.Current

    Accessible.name: line.text
    Accessible.role: Accessible.AlertMessage

    Label {
        id: line

        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        anchors.right: actions.left
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        text: notice.isGone ? "Cette compétence n’est plus dans la bibliothèque. Votre texte est encore ici."
                            : "Cette compétence a changé ailleurs depuis son ouverture. Votre texte est encore ici."
        wrapMode: Text.Wrap

        Accessible.ignored: true
    }
    Row {
        id: actions

        anchors.right: parent.right
        anchors.rightMargin: Metrics.small
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small

        ActionButton {
            symbol: "copy"
            text: "Copier le texte"
            onClicked: notice.draft.copy()
        }
        ActionButton {
            symbol: "rotate-cw"
            text: "Recharger"
            visible: !notice.isGone
            onClicked: notice.draft.reload()
        }
    }
}
