import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks which content to keep where the library has another one, and offers to decide so for all. */
Column {
    id: header

    required property int count

    /** The user picks this side of every difference. */
    signal allChosen(choice: int)

    spacing: Metrics.small

    Label {
        color: Colors.secondary
        lineHeight: 1.35
        text: header.count === 1
            ? "La bibliothèque a déjà cette compétence, avec un autre contenu. La nouvelle en deviendrait la révision suivante\u00A0; l’actuelle reste dans l’historique."
            : "La bibliothèque a déjà ces compétences, avec un autre contenu. Les nouvelles en deviendraient la révision suivante\u00A0; les actuelles restent dans l’historique."
        width: parent.width
        wrapMode: Text.Wrap
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.small
        visible: header.count > 1

        ActionButton {
            text: "Tout garder"
            onClicked: header.allChosen(Vornel.AdditionChoice.library)
        }
        ActionButton {
            text: "Tout prendre"
            onClicked: header.allChosen(Vornel.AdditionChoice.added)
        }
    }
}
