import QtQuick

/** What tells how something stands. */
GallerySection {
    name: "ÉTATS"

    StatusBadge {
        text: "Neutre"
    }
    StatusBadge {
        text: "En cours"
        tone: StatusBadge.Accent
    }
    StatusBadge {
        text: "À jour"
        tone: StatusBadge.Success
    }
    StatusBadge {
        text: "Modifiée"
        tone: StatusBadge.Warning
    }
    StatusBadge {
        text: "En échec"
        tone: StatusBadge.Danger
    }
    Tag {
        text: "mot-clé"
    }
    Tag {
        text: "un mot-clé bien trop long pour sa place"
    }
    TagRow {
        tags: ["atelier", "maquette", "interface", "animation"]
        width: 240
    }
    CapsuleMessage {
        text: "ENREGISTRÉE"
    }
    ProgressLine {
        value: 0.4
    }
}
