import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Tells that a file was changed elsewhere while it is edited here, and lets the user choose. */
Notice {
    id: notice

    required property EditedFile file

    /** The notice goes, or the user turns from it. */
    signal decided

    text: "Ce fichier a changé sur le disque depuis que vous le modifiez."
    visible: file.isStale
    Keys.onEscapePressed: decided()

    ActionButton {
        text: "Garder le mien"

        Accessible.description: "Votre texte remplacera celui du disque, qui reste dans l’historique."
        onClicked: {
            notice.file.keepMine();
            notice.decided();
        }
    }
    ActionButton {
        text: "Prendre celui du disque"
        onClicked: {
            notice.file.takeDisk();
            notice.decided();
        }
    }
}
