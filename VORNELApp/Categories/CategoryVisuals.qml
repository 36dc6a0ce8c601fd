pragma Singleton

import QtQuick
import VORNELDesignSystem

/** What a category looks like. */
QtObject {
    /** The symbol of a category. */
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
        default:
            return "sparkles";
        }
    }

    /** Its picture, for where there is room for more than a symbol. Categories of the user's have that of "other". */
    function artwork(id: string): string {
        switch (id) {
        case "development":
            return "VornelCategoryDevelopment";
        case "quality":
            return "VornelCategoryQuality";
        case "operations":
            return "VornelCategoryOperations";
        case "design":
            return "VornelCategoryDesign";
        case "knowledge":
            return "VornelCategoryKnowledge";
        default:
            return "VornelCategoryOther";
        }
    }

    /** The colour of six hexadecimal digits, made light enough to be read; without any, a neutral one. */
    function hue(colorHex: string): color {
        return colorHex === "" ? Colors.secondary : Colors.legible(Qt.color("#" + colorHex));
    }
}
