import QtQuick

/** Surfaces with something on them. */
GallerySection {
    name: "CARTES"

    StatCard {
        label: "COMPÉTENCES"
        value: 24
    }
    StatCard {
        hue: Colors.warning
        label: "DOUBLONS"
        value: 2
    }
    Surface {
        height: 92
        width: 160
    }
}
