pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What the assistants' copies hold that VORNEL's doesn't, before it is replaced. */
Sheet {
    id: sheet

    required property AppModel model
    required property SkillCopies copies
    property string acceptText: "Synchroniser"

    /** The copies may be replaced. */
    signal accepted

    readonly property real bodyHeight: Math.max(200, parent.height - 340)

    implicitWidth: Math.min(1040, parent.width - 2 * Metrics.page)
    title: "Différences avec les copies"
    onAboutToShow: {
        files.currentIndex = 0;
        files.show();
    }

    Label {
        color: Colors.secondary
        lineHeight: 1.35
        text: "Voici ce que les copies des assistants ont de différent. «\u00A0" + sheet.acceptText + "\u00A0» les remplace par la version de VORNEL\u00A0: ce qui est marqué + disparaît, ce qui est marqué − revient."
        visible: files.count > 0
        width: parent.width
        wrapMode: Text.Wrap
    }
    Repeater {
        model: sheet.copies.targets

        Label {
            required property targetInspection modelData

            color: Colors.danger
            text: modelData.assistant + "\u00A0: " + modelData.reason
            visible: modelData.reason !== ""
            width: parent?.width ?? 0
            wrapMode: Text.Wrap
        }
    }
    Row {
        height: sheet.bodyHeight
        spacing: Metrics.medium
        visible: files.count > 0
        width: parent.width

        DifferentFiles {
            id: files

            height: parent.height
            model: sheet.copies.differences
            width: Math.min(300, parent.width / 3)
            onChosen: (target, path) => comparison.compare(target, path)
        }
        DifferentLines {
            comparison: comparison
            height: parent.height
            width: parent.width - files.width - parent.spacing
        }
    }
    CopyComparison {
        id: comparison

        model: sheet.model
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium

        ActionButton {
            text: "Fermer"
            onClicked: sheet.close()
        }
        ActionButton {
            enabled: !sheet.model.isWorking
            role: ActionButton.Primary
            symbol: "refresh-cw"
            text: sheet.acceptText
            onClicked: {
                sheet.accepted();
                sheet.close();
            }
        }
    }
}
