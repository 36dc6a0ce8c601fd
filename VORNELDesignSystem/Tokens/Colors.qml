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

    // Only for code.
    readonly property color code: "#9FD8B4"
    readonly property color link: "#8FB8FF"
    readonly property color literal: "#F0C08A"

    // Only for categories.
    readonly property color violet: "#8A61E6"
    readonly property color magenta: "#D152F0"
    readonly property color orange: "#FF571A"

    /** A tint of a colour, faint enough to be the ground of text in that colour. */
    function tint(color: color): color {
        return Qt.rgba(color.r, color.g, color.b, 0.14);
    }

    /** A colour with just enough white for text in it to be legible on every surface. */
    function legible(color: color): color {
        const darkest = 0.28; // 4.5 times as light as the lightest surface
        const luminance = 0.2126 * linear(color.r) + 0.7152 * linear(color.g) + 0.0722 * linear(color.b);
        if (luminance >= darkest)
            return color;
        const white = (darkest - luminance) / (1 - luminance);
        return Qt.rgba(whitened(color.r, white), whitened(color.g, white), whitened(color.b, white), 1);
    }
    function whitened(component: real, white: real): real {
        const light = linear(component) * (1 - white) + white;
        return light <= 0.0031308 ? light * 12.92 : 1.055 * Math.pow(light, 1 / 2.4) - 0.055;
    }
    function linear(component: real): real {
        return component <= 0.04045 ? component / 12.92 : Math.pow((component + 0.055) / 1.055, 2.4);
    }
}
