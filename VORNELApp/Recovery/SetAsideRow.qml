import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A copy that was set aside. Enter shows it, Del deletes it. */
SkillListRow {
    id: row

    required property AppModel model

    signal deletionAsked
    signal restorationAsked
    signal revisionAsked

    text: record.skill.displayName + ", " + record.line

    Accessible.description: record.failure === "" ? record.date : record.date + ", " + record.failure
    Keys.onDeletePressed: deletionAsked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()

    contentItem: SkillRowContent {
        record: row.record

        Label {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.secondary
            font: Typography.small
            rightPadding: Metrics.small
            text: row.record.date

            Accessible.ignored: true
        }
        ActionButton {
            anchors.verticalCenter: parent.verticalCenter
            focusPolicy: row.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            symbol: "file-text"
            text: "Afficher"
            isCompact: row.width < Metrics.roomForTexts
            visible: row.record.failure === ""

            Accessible.description: row.text
            onClicked: row.clicked()
        }
        ActionButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: !row.model.isWorking
            focusPolicy: row.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            isCompact: true
            symbol: "undo-2"
            text: "Revenir à cette version"
            visible: row.record.canAdopt

            Accessible.description: row.text
            onClicked: row.revisionAsked()
        }
        ActionButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: !row.model.isWorking
            focusPolicy: row.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            isCompact: true
            symbol: "plus"
            text: "Restaurer comme nouvelle compétence…"
            visible: row.record.failure === ""

            Accessible.description: row.text
            onClicked: row.restorationAsked()
        }
        ActionButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: !row.model.isWorking
            focusPolicy: row.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            isCompact: true
            role: ActionButton.Destructive
            symbol: "trash-2"
            text: "Supprimer définitivement…"

            Accessible.description: row.text
            onClicked: row.deletionAsked()
        }
    }
}
