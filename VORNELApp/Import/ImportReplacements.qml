import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The folders that stand where the import would put a copy of a skill that only the other assistant has. */
Column {
    id: replacements

    required property AppModel model

    readonly property var plan: model.importPlan
    readonly property TargetOccupants found: occupants
    readonly property bool isOne: occupants.count === 1

    /** The row that was left out last, where the keyboard goes on; -1 without one. */
    property int excludedRow: -1

    /** The keyboard has no row left to go on from. */
    signal emptied

    function goOn(): void {
        if (excludedRow >= 0 && !folders.focusRow(excludedRow))
            emptied();
        excludedRow = -1;
    }

    spacing: Metrics.small
    visible: occupants.count > 0 || occupants.problem !== ""
    Component.onCompleted: occupants.followImport()
    onPlanChanged: occupants.followImport()

    TargetOccupants {
        id: occupants

        model: replacements.model
        onChanged: resumption.start()
    }
    Timer {
        id: resumption

        interval: 0 // once the rows are there
        onTriggered: replacements.goOn()
    }
    SymbolLabel {
        color: Colors.warning
        font: Typography.body
        symbol: "triangle-alert"
        text: {
            if (occupants.problem !== "")
                return "Les dossiers des assistants n’ont pas pu être examinés.";
            if (!occupants.canBeReplaced)
                return replacements.isOne ? "Le nom d’une compétence à importer est déjà pris."
                                          : "Les noms de " + occupants.count + " compétences à importer sont déjà pris.";
            return replacements.isOne ? "1 dossier porte le nom d’une compétence à importer."
                                      : occupants.count + " dossiers portent le nom de compétences à importer.";
        }

        Accessible.name: text
        Accessible.role: Accessible.StaticText
    }
    Label {
        color: Colors.secondary
        text: {
            if (occupants.problem !== "")
                return occupants.problem;
            if (!occupants.canBeReplaced)
                return "Ce qui ne peut pas être remplacé doit être déplacé, ou la compétence laissée de côté.";
            return replacements.isOne ? "Il serait remplacé, et gardé dans l’historique de la compétence."
                                      : "Ils seraient remplacés, et gardés dans l’historique des compétences.";
        }
        width: parent.width
        wrapMode: Text.Wrap
    }
    OccupiedFolders {
        id: folders

        canExclude: true
        enabled: !replacements.model.isWorking
        folders: occupants.folders
        width: parent.width
        onExcluded: (slug, index) => {
            replacements.excludedRow = index;
            replacements.model.excludeFromImport(slug);
        }
    }
}
