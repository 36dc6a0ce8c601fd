import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The folders that stand where copies of skills are to go, and what becomes of them. */
Column {
    id: notice

    required property TargetOccupants occupants

    /** What is to happen with the skills: "importer". */
    required property string verb

    /** Whether each skill can be left out. */
    property bool canExclude: false

    readonly property bool isOne: occupants.count === 1
    readonly property alias list: folders

    spacing: Metrics.small
    visible: occupants.count > 0 || occupants.problem !== ""

    SymbolLabel {
        color: Colors.warning
        font: Typography.body
        symbol: "triangle-alert"
        text: {
            if (notice.occupants.problem !== "")
                return "Les dossiers des assistants n’ont pas pu être examinés.";
            if (!notice.occupants.canBeReplaced)
                return notice.isOne ? "Le nom d’une compétence à " + notice.verb + " est déjà pris."
                                    : "Les noms de " + notice.occupants.count + " compétences à " + notice.verb + " sont déjà pris.";
            return notice.isOne ? "1 dossier porte le nom d’une compétence à " + notice.verb + "."
                                : notice.occupants.count + " dossiers portent le nom de compétences à " + notice.verb + ".";
        }

        Accessible.name: text
        Accessible.role: Accessible.StaticText
    }
    Label {
        color: Colors.secondary
        text: {
            if (notice.occupants.problem !== "")
                return notice.occupants.problem;
            if (!notice.occupants.canBeReplaced)
                return notice.canExclude ? "Ce qui ne peut pas être remplacé doit être déplacé, ou la compétence laissée de côté."
                                         : "Ce qui ne peut pas être remplacé doit être déplacé. Relancez ensuite l’analyse.";
            return notice.isOne ? "Il serait remplacé, et gardé dans l’historique de la compétence."
                                : "Ils seraient remplacés, et gardés dans l’historique des compétences.";
        }
        width: parent.width
        wrapMode: Text.Wrap
    }
    OccupiedFolders {
        id: folders

        canExclude: notice.canExclude
        folders: notice.occupants.folders
        width: parent.width
    }
}
