import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The folders that an import replaces without a choice of the user's: under a skill of the other assistant's. */
Column {
    id: replacements

    required property AppModel model

    readonly property var plan: model.importPlan

    spacing: Metrics.small
    visible: occupants.count > 0
    Component.onCompleted: occupants.lookForImport()
    onPlanChanged: occupants.lookForImport()

    TargetOccupants {
        id: occupants

        model: replacements.model
    }
    SymbolLabel {
        color: Colors.warning
        font: Typography.body
        symbol: "triangle-alert"
        text: occupants.count === 1 ? "1 dossier porte le nom d’une compétence à importer." : occupants.count + " dossiers portent le nom de compétences à importer."

        Accessible.name: text
        Accessible.role: Accessible.StaticText
    }
    Label {
        color: Colors.secondary
        text: occupants.count === 1 ? "Il serait remplacé, et gardé dans l’historique de la compétence." : "Ils seraient remplacés, et gardés dans l’historique des compétences."
        width: parent.width
        wrapMode: Text.Wrap
    }
    OccupiedFolders {
        folders: occupants.folders
        width: parent.width
    }
}
