import QtQuick

/** Every style of type. */
GallerySection {
    name: "TEXTES"

    Label {
        font: Typography.display
        text: "Titre d’accueil"
    }
    Label {
        font: Typography.title
        text: "Titre d’écran"
    }
    Label {
        font: Typography.section
        text: "Section"
    }
    Label {
        text: "Texte courant"
    }
    Label {
        color: Colors.secondary
        font: Typography.small
        text: "Texte secondaire"
    }
    Label {
        color: Colors.muted
        font: Typography.label
        text: "ÉTIQUETTE"
    }
    Label {
        font: Typography.code
        text: "texte à chasse fixe"
    }
}
