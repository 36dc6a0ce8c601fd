import QtQuick
import QtTest
import VORNELApp
import VORNELDesignSystem

/** The colours offered for categories: they can be read, and told apart by eyes that confuse colours. */
TestCase {
    name: "Palette"

    // What eyes see of linear light: all, and without one kind of cones (Machado, Oliveira and Fernandes, 2009).
    readonly property var visions: [
        [1, 0, 0, 0, 1, 0, 0, 0, 1],
        [0.152286, 1.052583, -0.204868, 0.114503, 0.786281, 0.099216, -0.003882, -0.048116, 1.051998],
        [0.367322, 0.860646, -0.227968, 0.280085, 0.672501, 0.047413, -0.011820, 0.042940, 0.968881],
        [1.255528, -0.076749, -0.178779, -0.078411, 0.930809, 0.147602, 0.004733, 0.691367, 0.303900]
    ]

    function transformed(matrix, vector) {
        return [0, 3, 6].map(row => matrix[row] * vector[0] + matrix[row + 1] * vector[1] + matrix[row + 2] * vector[2]);
    }
    function linear(hex) {
        return [0, 2, 4].map(place => Colors.linear(parseInt(hex.slice(place, place + 2), 16) / 255));
    }
    /** The place of a colour in a space where distances are what is seen of a difference (OKLab). */
    function perceived(light) {
        const cones = transformed([0.4122214708, 0.5363325363, 0.0514459929, 0.2119034982, 0.6806995451, 0.1073969566, 0.0883024619, 0.2817188376, 0.6299787005], light.map(part => Math.max(0, Math.min(1, part))));
        return transformed([0.2104542553, 0.7936177850, -0.0040720468, 1.9779984951, -2.4285922050, 0.4505937099, 0.0259040371, 0.7827717662, -0.8086757660], cones.map(Math.cbrt));
    }
    function luminance(hex) {
        const light = linear(hex);
        return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
    }

    function test_palette() {
        const colors = CategoryPalette.colors;
        compare(colors.length, 12);
        compare(colors[0].hex, "21D6D1");
        compare(new Set(colors.map(color => color.name)).size, 12);
        for (const { hex } of colors) {
            verify(/^[0-9A-F]{6}$/.test(hex));
            for (const ground of [Colors.surface, Colors.raised])
                verify((luminance(hex) + 0.05) / (luminance(ground.toString().slice(1)) + 0.05) >= 3, hex);
            compare(Colors.legible(Qt.color("#" + hex)), Qt.color("#" + hex), "shown as it was chosen");
        }
        for (const vision of visions) {
            const seen = colors.map(color => perceived(transformed(vision, linear(color.hex))));
            for (let one = 0; one < seen.length; ++one)
                for (let other = 0; other < one; ++other) {
                    const distance = Math.hypot(...seen[one].map((part, axis) => part - seen[other][axis]));
                    verify(distance > 0.08, colors[one].name + " and " + colors[other].name);
                }
        }
    }
}
