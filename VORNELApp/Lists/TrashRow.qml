import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A trashed skill. Enter restores it, Del deletes it, Space selects it. */
SkillListRow {
    id: row

    required property AppModel model
    required property SkillSelection selection

    signal restorationAsked
    signal deletionAsked

    isChoosable: selection.isSelecting
    onClicked: if (isChoosable) selection.toggle(record.id)

    Keys.onDeletePressed: deletionAsked()
    Keys.onEnterPressed: restorationAsked()
    Keys.onReturnPressed: restorationAsked()
    Keys.onSpacePressed: selection.toggle(record.id)

    contentItem: SkillRowContent {
        isSelecting: row.selection.isSelecting
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
            enabled: !row.model.isWorking
            focusPolicy: row.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            isCompact: row.width < Metrics.roomForTexts
            symbol: "undo-2"
            text: "Restaurer"
            visible: !row.selection.isSelecting

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
            text: "Supprimer définitivement"
            visible: !row.selection.isSelecting

            Accessible.description: row.text
            onClicked: row.deletionAsked()
        }
    }
}
