pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The conflicts of a merge, to be settled one by one. Closed, it keeps what was settled for the next time. */
Sheet {
    id: sheet

    required property AppModel model

    readonly property Adoption adoption: model.adoption
    readonly property ConflictList conflicts: adoption.conflicts
    readonly property int settledCount: conflicts.count - conflicts.openCount

    firstFocus: list
    implicitWidth: Math.min(1200, (parent?.width ?? 0) - 2 * Metrics.page)
    title: "Fusionner les deux copies"
    onAboutToHide: adoption.leaveMerge()
    onAboutToShow: {
        list.currentIndex = 0;
        view.show();
    }

    Connections {
        function onIsMergingChanged() {
            if (!sheet.adoption.isMerging)
                sheet.close();
        }

        target: sheet.adoption
    }
    Connections {
        function onModelReset() {
            list.currentIndex = Math.max(0, Math.min(list.currentIndex, list.count - 1));
            view.show();
        }

        target: sheet.conflicts
    }
    Label {
        id: note

        color: Colors.secondary
        lineHeight: 1.35
        text: "Dans ces fichiers, Claude et Codex se contredisent. Choisissez pour chacun ce qui reste\u00A0; tout le reste est déjà réuni. Rien n’est écrit avant «\u00A0Fusionner\u00A0», et les deux copies restent dans l’historique."
        width: parent.width
        wrapMode: Text.Wrap
    }
    Row {
        height: Math.max(120, (sheet.parent?.height ?? 0) - note.height - problem.height - 260)
        spacing: Metrics.medium
        width: parent.width

        Surface {
            border.color: list.activeFocus ? Colors.accent : Colors.line
            height: parent.height
            width: Math.min(260, parent.width / 4)

            RowList {
                id: list

                anchors.fill: parent
                anchors.margins: Metrics.small
                focus: true
                model: sheet.conflicts
                name: "Conflits"

                delegate: ConflictRow {
                    width: list.width
                    onClicked: {
                        list.currentIndex = index;
                        list.forceActiveFocus(Qt.MouseFocusReason);
                    }
                }
            }
        }
        ConflictView {
            id: view

            conflict: list.currentItem as ConflictRow
            height: parent.height
            model: sheet.model
            width: parent.width - x
        }
    }
    ErrorPanel {
        id: problem

        text: sheet.isUsed ? sheet.model.errorMessage : ""
        width: parent.width
        onDismissed: {
            sheet.model.clearError();
            list.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
    Item {
        height: end.height
        width: parent.width

        Label {
            anchors.verticalCenter: parent.verticalCenter
            color: sheet.conflicts.openCount === 0 ? Colors.success : Colors.secondary
            text: sheet.settledCount + (sheet.settledCount < 2 ? " conflit réglé sur " : " conflits réglés sur ") + sheet.conflicts.count
        }
        Row {
            id: end

            anchors.right: parent.right
            spacing: Metrics.medium

            ActionButton {
                text: "Fermer"
                onClicked: sheet.close()
            }
            ActionButton {
                enabled: sheet.conflicts.openCount === 0 && !sheet.model.isWorking
                role: ActionButton.Primary
                symbol: "list-checks"
                text: "Fusionner"
                onClicked: sheet.adoption.finishMerge()
            }
        }
    }
}
