import QtQuick

/** The buttons, in every role and state. */
GallerySection {
    name: "BOUTONS"

    ActionButton {
        role: ActionButton.Primary
        symbol: "plus"
        text: "Action principale"
    }
    ActionButton {
        symbol: "refresh-cw"
        text: "Action discrète"
    }
    ActionButton {
        role: ActionButton.Destructive
        symbol: "trash-2"
        text: "Action destructive"
    }
    ActionButton {
        isSymbolTrailing: true
        role: ActionButton.Primary
        symbol: "arrow-right"
        text: "Symbole après"
    }
    ActionButton {
        isFlat: true
        symbol: "x"
        text: "Sans surface"
    }
    ActionButton {
        isCompact: true
        symbol: "rotate-cw"
        text: "Symbole seul"
    }
    ActionButton {
        enabled: false
        role: ActionButton.Primary
        text: "Désactivée"
    }
    ActionButton {
        enabled: false
        text: "Désactivée"
    }
    ActionButton {
        enabled: false
        role: ActionButton.Destructive
        text: "Désactivée"
    }
    ActionButton {
        focus: true
        text: "Au clavier"
        Component.onCompleted: forceActiveFocus(Qt.TabFocusReason)
    }
}
