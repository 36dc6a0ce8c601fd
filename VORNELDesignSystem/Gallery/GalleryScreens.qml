import QtQuick

/** What stands in place of a screen’s content. */
GallerySection {
    name: "ÉTATS D’ÉCRAN"

    StateView {
        line: "Une ligne qui dit quoi faire."
        symbol: "check"
        title: "Tout va bien"
        width: 320
    }
    StateView {
        hue: Colors.danger
        line: "Une ligne qui dit ce qui s’est passé."
        symbol: "triangle-alert"
        title: "Un échec"
        width: 320

        ActionButton {
            role: ActionButton.Primary
            text: "Réessayer"
        }
    }
}
