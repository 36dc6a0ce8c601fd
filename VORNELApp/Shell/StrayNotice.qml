import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Tells of an unsaved text that no editor takes up, where it is kept, and lets the user copy or delete it. */
Notice {
    id: notice

    required property StrayTexts texts

    /** The file that the question is about. Another one may be shown while the question is open. */
    property string condemned

    /** The user has dealt with the text, or turns away from the notice. */
    signal decided

    text: texts.notice
    Keys.onEscapePressed: decided()

    ActionButton {
        symbol: "copy"
        text: "Copier le texte"
        visible: notice.texts.isText
        onClicked: notice.texts.copy()
    }
    ActionButton {
        symbol: "folder-open"
        text: "Ouvrir le dossier"
        visible: notice.texts.isFile
        onClicked: Qt.openUrlExternally(notice.texts.folder)
    }
    ActionButton {
        symbol: "trash-2"
        text: "Supprimer le texte"
        visible: notice.texts.isFile
        onClicked: {
            notice.condemned = notice.texts.place;
            question.open();
        }
    }
    ActionButton {
        text: "Plus tard"
        onClicked: {
            notice.texts.postpone();
            notice.decided();
        }
    }
    ConfirmationDialog {
        id: question

        acceptText: "Supprimer"
        isDestructive: true
        message: "Ce texte n’est enregistré nulle part ailleurs. Sa suppression est irréversible."
        title: "Supprimer ce texte non enregistré\u00A0?"
        onAccepted: notice.texts.discard(notice.condemned)
        onClosed: if (isAccepted) notice.decided()
    }
    Connections {
        function onChanged() {
            if (question.isUsed && notice.texts.place !== notice.condemned)
                question.close();
        }

        target: notice.texts
    }
}
