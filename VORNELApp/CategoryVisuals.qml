pragma Singleton

import QtQuick

/** What a category looks like. */
QtObject {
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

    /** The colour of six hexadecimal digits. */
    function hue(colorHex: string): color {
        return Qt.color("#" + colorHex);
    }
}
