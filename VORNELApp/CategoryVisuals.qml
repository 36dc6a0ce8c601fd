pragma Singleton

import QtQuick
import VORNELDesignSystem

/** What a category looks like. */
QtObject {
    /** The symbol of a category; without an identifier, of all of them. */
    function symbol(id: string): string {
        switch (id) {
        case "development":
            return "code-xml";
        case "quality":
            return "badge-check";
        case "operations":
            return "settings";
        case "design":
            return "palette";
        case "knowledge":
            return "brain";
        case "":
            return "layout-grid";
        default:
            return "sparkles";
        }
    }

    /** The colour of six hexadecimal digits, made light enough to be read; without any, a neutral one. */
    function hue(colorHex: string): color {
        return colorHex === "" ? Colors.secondary : Colors.legible(Qt.color("#" + colorHex));
    }
}
