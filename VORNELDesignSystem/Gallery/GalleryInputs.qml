pragma ComponentBehavior: Bound

import QtQuick

/** What the user chooses with, and types into. */
GallerySection {
    name: "CHOIX ET SAISIE"

    ChoiceButton {
        isChosen: true
        text: "Choisi"
    }
    ChoiceButton {
        text: "Non choisi"
    }
    ChoiceButton {
        enabled: false
        text: "Désactivé"
    }
    TextEntry {
        placeholderText: "Champ vide"
    }
    TextEntry {
        text: "Champ rempli"
    }
    TextEntry {
        enabled: false
        text: "Champ désactivé"
    }
    LabelledField {
        hint: "Indication"
        label: "Champ nommé"
        note: "Une ligne qui aide à le remplir."
        text: ""
        width: 240
    }
    LabelledField {
        label: "Champ refusé"
        problem: "Une ligne qui dit pourquoi."
        text: "Texte"
        width: 240
    }
    LabelledText {
        label: "Champ de plusieurs lignes"
        text: "Un texte plus long que la ligne, qui se poursuit sur la suivante."
        width: 240
    }
    ChipField {
        hint: "Ajouter un mot-clé"
        label: "Mots-clés"
        suggestions: ["qualité", "sécurité"]
        texts: ["accessibilité", "audit", "web"]
        typed: ""
        width: 240
        onAdded: text => texts = texts.concat([text])
        onEdited: text => typed = text
        onRemoved: text => texts = texts.filter(other => other !== text)
    }
    ColorPicker {
        width: 320
    }
    SearchField {
        clearText: "Effacer"
        placeholderText: "Rechercher"
    }
    SearchField {
        clearText: "Effacer"
        text: "recherche"
    }
    Repeater {
        model: [Colors.accent, Colors.violet, Colors.magenta, Colors.orange]

        ColorSwatch {
            required property int index
            required property color modelData

            hue: modelData
            isChosen: index === 0
            text: String(modelData)
        }
    }
    ActionButton {
        symbol: "ellipsis"
        text: "Menu"
        onClicked: menu.open()

        ActionMenu {
            id: menu

            y: parent.height + Metrics.tiny

            ActionMenuItem {
                symbol: "refresh-cw"
                text: "Commande"
            }
            ActionMenuItem {
                isChosen: true
                text: "Choix en cours"
            }
            ActionMenuItem {
                enabled: false
                text: "Désactivée"
            }
            ActionMenuItem {
                isDestructive: true
                symbol: "trash-2"
                text: "Destructive"
            }
        }
    }
}
