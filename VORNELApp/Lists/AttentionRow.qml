pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A skill of which a copy isn't as it should be. Enter opens it, Ctrl+Enter synchronises it. */
SkillListRow {
    id: row

    required property AppModel model
    required property AttentionList skills

    readonly property bool isStale: record.isStale

    signal adoptionAsked
    signal synchronizationAsked

    function look(): void {
        if (isStale)
            skills.look(record.id);
    }

    /** `copy` is an inspection; compiled for its type, the handler below couldn't read its target in Qt 6.4. */
    function setAside(copy: var): void {
        model.setCopyAside(record.id, copy.target);
    }

    Component.onCompleted: look()
    onIsStaleChanged: look()

    Keys.onPressed: event => {
        const isEnter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        event.accepted = isEnter;
        if (isEnter && event.modifiers & Qt.ControlModifier)
            synchronizationAsked();
        else if (isEnter)
            clicked();
    }

    contentItem: SkillRowContent {
        mostLines: 2
        record: row.record

        StatusBadge {
            anchors.verticalCenter: parent.verticalCenter
            text: "À mettre à jour"
            tone: row.record.hasFailed ? StatusBadge.Danger : StatusBadge.Warning
        }
        Item {
            height: 1
            width: Metrics.tiny
        }
        Repeater {
            model: row.record.unreadable.length === 1 ? row.record.unreadable : [] // for several, the menu has them all

            UnreadableCopyActions {
                required property copyInspection modelData

                canAct: !row.model.isWorking
                inspection: modelData
                isCompact: row.width < Metrics.roomForTexts
                isCurrent: row.isCurrent
                name: row.text
                onSettingAsideAsked: row.setAside(modelData)
            }
        }
        ActionButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: !row.model.isWorking
            focusPolicy: row.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            isCompact: row.width < Metrics.roomForTexts || row.record.unreadable.length > 0
            symbol: "check"
            text: "Adopter…"
            visible: row.record.canAdopt

            Accessible.description: row.text
            onClicked: row.adoptionAsked()
        }
        ActionButton {
            anchors.verticalCenter: parent.verticalCenter
            enabled: !row.model.isWorking
            focusPolicy: row.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            isCompact: row.width < Metrics.roomForTexts
            symbol: "folder-sync"
            text: "Synchroniser"

            Accessible.description: row.text
            onClicked: row.synchronizationAsked()
        }
    }
}
