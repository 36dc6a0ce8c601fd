pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The colour of a category: one of the palette, or any other. The palette is one stop of Tab; the arrows choose. */
Column {
    id: colors

    required property CategoryForm form

    readonly property bool isOther: !CategoryPalette.contains(form.colorHex)

    /** Chooses the colour so many places further on, and gives it the keyboard. */
    function step(places: int): void {
        const last = CategoryPalette.colors.length - 1;
        const current = CategoryPalette.colors.findIndex(color => color.hex === form.colorHex);
        const next = Math.max(0, Math.min(last, current + places));
        swatches.itemAt(next).forceActiveFocus(Qt.TabFocusReason); // first: what has the keyboard must be a stop of Tab
        form.colorHex = CategoryPalette.colors[next].hex;
    }

    spacing: Metrics.small

    Accessible.name: "Couleur"
    Accessible.role: Accessible.Grouping

    Label {
        color: Colors.secondary
        font: Typography.small
        text: "Couleur"
    }
    Row {
        spacing: (parent.width - swatches.count * 32) / (swatches.count - 1)

        Keys.onDownPressed: colors.step(1)
        Keys.onLeftPressed: colors.step(-1)
        Keys.onRightPressed: colors.step(1)
        Keys.onUpPressed: colors.step(-1)

        Repeater {
            id: swatches

            model: CategoryPalette.colors

            ColorSwatch {
                required property int index
                required property var modelData

                activeFocusOnTab: isChosen || colors.isOther && index === 0
                hue: Qt.color("#" + modelData.hex)
                isChosen: colors.form.colorHex === modelData.hex
                text: modelData.name
                onClicked: colors.form.colorHex = modelData.hex
            }
        }
    }
    Row {
        spacing: Metrics.small
        topPadding: Metrics.tiny

        ColorSwatch {
            anchors.verticalCenter: other.verticalCenter
            hue: CategoryVisuals.hue(colors.form.colorHex)
            isChosen: true
            text: "Autre couleur, " + colors.form.colorHex
            visible: colors.isOther
        }
        ActionButton {
            id: other

            symbol: "palette"
            text: "Choisir une autre couleur"
            onClicked: picking.begin(colors.form.colorHex)
        }
    }
    ColorSheet {
        id: picking

        title: other.text
        onChosen: colorHex => colors.form.colorHex = colorHex
    }
}
