pragma Singleton

import QtQuick

/** The colours offered for categories. Eyes that confuse colours can tell them apart, and each is light enough to be read. */
QtObject {
    readonly property var colors: [
        { hex: "21D6D1", name: "Cyan" },
        { hex: "89FFFF", name: "Glacier" },
        { hex: "99ACFF", name: "Pervenche" },
        { hex: "B071FF", name: "Violet" },
        { hex: "FF39C4", name: "Fuchsia" },
        { hex: "F07C97", name: "Rose" },
        { hex: "F2B790", name: "Pêche" },
        { hex: "BF8600", name: "Ocre" },
        { hex: "FFF6A8", name: "Crème" },
        { hex: "B8C20B", name: "Olive" },
        { hex: "B4FA29", name: "Citron vert" },
        { hex: "0BAA6A", name: "Émeraude" }
    ]

    function contains(hex: string): bool {
        return colors.some(color => color.hex === hex);
    }
}
