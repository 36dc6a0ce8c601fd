import QtQuick

/** A free choice of a colour: by hue, saturation and brightness, or by its six hexadecimal digits. */
FocusScope {
    id: picker

    /** What is being typed, which may not be a colour yet. */
    property string typed

    property real hue: 0.5
    property real saturation: 1
    property real brightness: 1

    readonly property color color: Qt.hsva(hue, saturation, brightness, 1)

    /** Six upper-case digits: red, green, blue. */
    readonly property string colorHex: color.toString().slice(1).toUpperCase()

    readonly property bool isValid: normalized(typed) !== ""

    /** Shows the colour of six digits. A grey has no hue of its own: the last one stays. */
    function show(colorHex: string): void {
        const shown = Qt.color("#" + colorHex);
        if (shown.hsvHue >= 0)
            hue = shown.hsvHue;
        saturation = shown.hsvSaturation;
        brightness = shown.hsvValue;
        typed = colorHex;
    }
    /** Six digits from what was typed; empty unless it is a colour. */
    function normalized(text: string): string {
        const digits = text.replace(/[#\s]/g, "").toUpperCase();
        return /^[0-9A-F]{6}$/.test(digits) ? digits : "";
    }
    function percent(share: real): string {
        return Math.round(share * 100) + "\u00A0%";
    }

    implicitHeight: column.height

    Column {
        id: column

        spacing: Metrics.large
        width: parent.width

        Row {
            spacing: Metrics.large
            width: parent.width

            Rectangle {
                border.color: Colors.line
                border.width: Metrics.hairline
                color: picker.color
                height: digits.height
                radius: Metrics.controlRadius
                width: height

                Accessible.name: "Couleur choisie, " + picker.colorHex
                Accessible.role: Accessible.Graphic
            }
            LabelledField {
                id: digits

                focus: true
                label: "Code hexadécimal"
                note: "Rouge, vert, bleu\u00A0: deux chiffres chacun"
                problem: picker.isValid ? "" : "Six chiffres, de 0 à 9 ou de A à F"
                text: picker.typed
                width: parent.width - height - parent.spacing
                onEdited: text => {
                    const colorHex = picker.normalized(text);
                    if (colorHex !== "")
                        picker.show(colorHex);
                    picker.typed = text;
                }
            }
        }
        ColorSlider {
            hue: Qt.hsva(picker.hue, 1, 1, 1)
            label: "Teinte"
            to: 360
            value: picker.hue * to
            valueText: Math.round(value) + "°"
            width: parent.width
            onMoved: {
                picker.hue = value / to;
                picker.typed = picker.colorHex;
            }

            track: Gradient {
                orientation: Gradient.Horizontal

                GradientStop { color: "#FF0000"; position: 0 }
                GradientStop { color: "#FFFF00"; position: 1 / 6 }
                GradientStop { color: "#00FF00"; position: 2 / 6 }
                GradientStop { color: "#00FFFF"; position: 3 / 6 }
                GradientStop { color: "#0000FF"; position: 4 / 6 }
                GradientStop { color: "#FF00FF"; position: 5 / 6 }
                GradientStop { color: "#FF0000"; position: 1 }
            }
        }
        ColorSlider {
            hue: picker.color
            label: "Saturation"
            to: 100
            value: picker.saturation * to
            valueText: picker.percent(picker.saturation)
            width: parent.width
            onMoved: {
                picker.saturation = value / to;
                picker.typed = picker.colorHex;
            }

            track: Gradient {
                orientation: Gradient.Horizontal

                GradientStop { color: Qt.hsva(picker.hue, 0, picker.brightness, 1); position: 0 }
                GradientStop { color: Qt.hsva(picker.hue, 1, picker.brightness, 1); position: 1 }
            }
        }
        ColorSlider {
            hue: picker.color
            label: "Luminosité"
            to: 100
            value: picker.brightness * to
            valueText: picker.percent(picker.brightness)
            width: parent.width
            onMoved: {
                picker.brightness = value / to;
                picker.typed = picker.colorHex;
            }

            track: Gradient {
                orientation: Gradient.Horizontal

                GradientStop { color: "#000000"; position: 0 }
                GradientStop { color: Qt.hsva(picker.hue, picker.saturation, 1, 1); position: 1 }
            }
        }
    }
}
