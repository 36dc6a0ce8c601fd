import QtQuick
import VORNELApp

/** The folders that stand where the import would put a copy of a skill that only the other assistant has. */
OccupiedNotice {
    id: replacements

    required property AppModel model

    readonly property var plan: model.importPlan
    readonly property TargetOccupants found: occupants

    /** The row that was left out last, where the keyboard goes on; -1 without one. */
    property int excludedRow: -1

    /** The keyboard has no row left to go on from. */
    signal emptied

    function goOn(): void {
        if (excludedRow >= 0 && !list.focusRow(excludedRow))
            emptied();
        excludedRow = -1;
    }

    canExclude: true
    list.enabled: !model.isWorking
    occupants: TargetOccupants {
        model: replacements.model
        onChanged: resumption.start()
    }
    verb: "importer"
    Component.onCompleted: occupants.followImport()
    onPlanChanged: occupants.followImport()

    Timer {
        id: resumption

        interval: 0 // once the rows are there
        onTriggered: replacements.goOn()
    }
    Connections {
        function onExcluded(slug: string, index: int) {
            replacements.excludedRow = index;
            replacements.model.excludeFromImport(slug);
        }

        target: replacements.list
    }
}
