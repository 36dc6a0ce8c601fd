import QtQuick

/** What opens over the window. */
GallerySection {
    name: "PANNEAUX"

    ActionButton {
        text: "Panneau"
        onClicked: sheet.open()

        Sheet {
            id: sheet

            title: "Panneau"

            TextEntry {
                focus: true
                placeholderText: "Un champ"
                width: parent.width
            }
        }
    }
    ActionButton {
        text: "Confirmation"
        onClicked: confirmation.open()

        ConfirmationDialog {
            id: confirmation

            acceptText: "Supprimer"
            isDestructive: true
            message: "Cette action est irréversible."
            title: "Supprimer l’élément ?"
        }
    }
}
