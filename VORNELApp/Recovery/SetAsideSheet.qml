import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Shows what a copy holds that was set aside, and in what it differs from the library. */
Sheet {
    id: sheet

    enum Choice {
        Nothing,
        Restoration,
        Revision,
        Deletion
    }

    required property AppModel model
    required property SetAsideList copies
    property skillEntry record
    property string copy

    /** What the user has chosen, which happens once the sheet is closed. */
    property int choice: SetAsideSheet.Nothing

    readonly property string legend: {
        if (content.problem !== "")
            return "Cette copie n’a pas pu être lue. " + content.problem;
        if (!record.canAdopt)
            return "La bibliothèque n’a pas de compétence de ce nom.";
        const same = content.sameCount === 0 ? "" : content.sameCount === 1 ? " Un fichier est identique." : " " + content.sameCount + " fichiers sont identiques.";
        return "Ce qui est marqué + n’est que dans cette copie, ce qui est marqué − n’est que dans la bibliothèque." + same;
    }

    signal restorationAsked(record: skillEntry)
    signal revisionAsked(record: skillEntry)
    signal deletionAsked(record: skillEntry)

    function show(record: skillEntry): void {
        sheet.record = record;
        copy = copies.copyID(record.id);
        lines.skillID = record.skill.id;
        content.look(copy, record.canAdopt);
        open();
    }
    function choose(choice: int): void {
        sheet.choice = choice;
        close();
    }

    firstFocus: files.list
    implicitWidth: Math.min(1040, (parent?.width ?? 0) - 2 * Metrics.page)
    title: "Copie de «\u00A0" + record.skill.displayName + "\u00A0»"
    onAboutToShow: choice = SetAsideSheet.Nothing
    onClosed: {
        switch (choice) {
        case SetAsideSheet.Restoration:
            return restorationAsked(record);
        case SetAsideSheet.Revision:
            return revisionAsked(record);
        case SetAsideSheet.Deletion:
            return deletionAsked(record);
        }
    }

    SetAsideComparison {
        id: content

        model: sheet.model
        onChanged: {
            files.currentIndex = 0;
            files.show();
        }
    }
    FileComparison {
        id: lines

        model: sheet.model
    }
    Label {
        id: facts

        text: sheet.record.line + " · " + sheet.record.date
        width: parent.width
        wrapMode: Text.Wrap
    }
    Label {
        id: legend

        color: content.problem === "" ? Colors.secondary : Colors.danger
        lineHeight: 1.35
        text: sheet.legend
        width: parent.width
        wrapMode: Text.Wrap
    }
    Row {
        height: Math.max(120, Math.round((sheet.parent?.height ?? 0) - facts.height - legend.height - actions.height) - 240)
        spacing: Metrics.medium
        width: parent.width

        DifferentFiles {
            id: files

            height: parent.height
            model: content.files
            width: Math.min(300, parent.width / 3)
            onChosen: (target, path) => lines.compareSetAside(sheet.copy, path)

            Label {
                anchors.centerIn: parent
                color: Colors.secondary
                horizontalAlignment: Text.AlignHCenter
                text: "Rien ne diffère de la bibliothèque."
                visible: content.isKnown && files.count === 0
                width: parent.width - 2 * Metrics.large
                wrapMode: Text.Wrap
            }
        }
        DifferentLines {
            comparison: lines
            height: parent.height
            width: parent.width - files.width - parent.spacing
        }
    }
    Flow {
        id: actions

        layoutDirection: Qt.RightToLeft
        spacing: Metrics.small
        width: parent.width

        ActionButton {
            enabled: !sheet.model.isWorking
            role: ActionButton.Primary
            symbol: "undo-2"
            text: "Revenir à cette version"
            visible: sheet.record.canAdopt
            onClicked: sheet.choose(SetAsideSheet.Revision)
        }
        ActionButton {
            enabled: !sheet.model.isWorking
            symbol: "plus"
            text: "Restaurer comme nouvelle compétence…"
            onClicked: sheet.choose(SetAsideSheet.Restoration)
        }
        ActionButton {
            enabled: !sheet.model.isWorking
            role: ActionButton.Destructive
            symbol: "trash-2"
            text: "Supprimer définitivement…"
            onClicked: sheet.choose(SetAsideSheet.Deletion)
        }
        ActionButton {
            text: "Fermer"
            onClicked: sheet.close()
        }
    }
}
