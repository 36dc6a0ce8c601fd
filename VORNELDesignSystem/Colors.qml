pragma Singleton

import QtQuick

/** The colours of the product. Texts keep at least 4.5 : 1 on the surfaces they are meant for. */
QtObject {
    readonly property color canvas: "#0B0D10"
    readonly property color surface: "#12161B"
    readonly property color raised: "#1A2027"
    readonly property color hover: "#212932"
    readonly property color line: "#2B343E"
    readonly property color scrim: "#B30B0D10"

    readonly property color text: "#F1F5F8"
    readonly property color secondary: "#A7B2BE"
    readonly property color muted: "#7C8896"

    readonly property color accent: "#21D6D1"
    readonly property color accentHover: "#4FE3DF"
    readonly property color accentPressed: "#19B4B0"
    readonly property color inkOnAccent: "#06211F"

    readonly property color success: "#63DE91"
    readonly property color warning: "#FFB347"
    readonly property color danger: "#FF5A4F"

    // Of code only.
    readonly property color code: "#9FD8B4"
    readonly property color link: "#8FB8FF"

    // Of categories only.
    readonly property color violet: "#8A61E6"
    readonly property color magenta: "#D152F0"
    readonly property color orange: "#FF571A"

    /** A colour thinned to a tint that lies well behind text of that colour. */
    function tint(color: color): color {
        return Qt.rgba(color.r, color.g, color.b, 0.14);
    }
}
