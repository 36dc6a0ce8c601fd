import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/**
 * Looks before skills are put into the assistants' folders. Asks where that would replace folders of others, and says
 * so where it can't.
 */
Sheet {
    id: question

    required property AppModel model
    required property string acceptText
    property string rejectText: "Annuler"

    /** What the user reads before the general explanation. */
    property string message

    /** What was found: by its own look, or by that of the screen that shows it too. */
    property TargetOccupants occupants: own
    readonly property TargetOccupants own: TargetOccupants {
        model: question.model
    }

    /** Whether what was found can be replaced. */
    readonly property bool canAccept: occupants.canBeReplaced

    /** Whether an answer is waited for: that of the look, or the user's. */
    property bool isAsking: false

    /** How many places are taken. */
    readonly property int count: occupants.count

    property bool isAccepted: false

    readonly property string notice: {
        if (occupants.problem !== "")
            return "Les dossiers des assistants n’ont pas pu être examinés\u00A0; rien n’est écrit. " + occupants.problem;
        if (!canAccept)
            return "Un lien, un fichier ou un dossier qui ne peut pas être lu en entier n’est jamais remplacé. Déplacez-le d’abord.";
        return count === 1 ? "VORNEL n’a pas installé ce dossier. "
                             + "S’il est remplacé, il reste gardé tel quel dans l’historique de la compétence."
                           : "VORNEL n’a pas installé ces dossiers. "
                             + "S’ils sont remplacés, ils restent gardés tels quels dans l’historique des compétences.";
    }

    /** No folder is in the way. */
    signal unoccupied

    /** The user agrees to replace the folders. */
    signal accepted

    /** The folders are to stay as they are. */
    signal rejected

    /** Asks if a folder stands under the slug. */
    function ask(slug: string): void {
        isAsking = true;
        occupants.look([slug]);
    }

    /** The same for the skills of the trash that have these slugs. */
    function askForRestored(slugs: var): void {
        isAsking = true;
        occupants.lookForRestored(slugs);
    }

    /** The same for the import that is planned. */
    function askForImport(): void {
        isAsking = true;
        occupants.lookForImport();
    }

    /** Answers nothing any more, since whoever asked is gone. */
    function forget(): void {
        isAsking = false;
    }

    firstFocus: reject
    implicitWidth: Math.min(640, parent.width - 2 * Metrics.page)
    onAboutToHide: {
        if (!isAccepted) {
            isAsking = false;
            rejected();
        }
    }
    onAboutToShow: isAccepted = false
    onClosed: {
        if (!isAccepted)
            return;
        isAsking = false;
        accepted();
    }

    Connections {
        function onLooked() {
            if (!question.isAsking || question.isUsed)
                return;
            if (question.count > 0 || question.occupants.problem !== "")
                return question.open();
            question.isAsking = false;
            question.unoccupied();
        }

        target: question.occupants
    }
    Label {
        color: Colors.secondary
        lineHeight: 1.35
        text: (question.message === "" ? "" : question.message + " ") + question.notice
        width: parent.width
        wrapMode: Text.Wrap
    }
    Flickable {
        id: scroller

        boundsBehavior: Flickable.StopAtBounds
        clip: contentHeight > height
        contentHeight: folders.height
        height: Math.min(contentHeight, 5 * Metrics.rowHeight)
        width: parent.width

        T.ScrollBar.vertical: ScrollRail {}

        OccupiedFolders {
            id: folders

            folders: question.occupants.folders
            width: parent.width - (scroller.clip ? Metrics.large : 0)
            onReached: row => scroller.contentY = Math.max(row.y + row.height - scroller.height, Math.min(scroller.contentY, row.y))
        }
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium
        topPadding: Metrics.small

        ActionButton {
            id: reject

            text: question.rejectText
            onClicked: question.close()
        }
        ActionButton {
            role: ActionButton.Primary
            text: question.acceptText
            visible: question.canAccept
            onClicked: {
                question.isAccepted = true;
                question.close();
            }
        }
    }
}
