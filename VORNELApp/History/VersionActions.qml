import QtQuick
import VORNELDesignSystem

/** What can be done with a version, or with the file of it that is chosen. */
Flow {
    id: actions

    required property bool canTakeVersion
    required property bool canTakeFile
    required property bool hasText
    required property bool isCompact

    /** Whether the version has no such file, and whether it is a folder. */
    required property bool isRemoval
    required property bool isFolder

    signal versionAsked
    signal fileAsked
    signal textAsked

    spacing: Metrics.small

    ActionButton {
        enabled: actions.canTakeVersion
        symbol: "undo-2"
        text: "Revenir à cette version"
        onClicked: actions.versionAsked()
    }
    ActionButton {
        enabled: actions.canTakeFile
        isCompact: actions.isCompact
        symbol: actions.isFolder ? "folder" : "file"
        text: (actions.isRemoval ? "Retirer ce " : "Reprendre ce ") + (actions.isFolder ? "dossier" : "fichier")

        Accessible.description: !enabled ? "indisponible" : actions.isRemoval ? "Cette version ne l’avait pas" : "Lui seul revient à cette version"
        onClicked: actions.fileAsked()
    }
    ActionButton {
        enabled: actions.hasText
        isCompact: actions.isCompact
        symbol: "copy"
        text: "Copier le texte"
        onClicked: actions.textAsked()
    }
}
