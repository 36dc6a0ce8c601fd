pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The name and the colour of a new category, and how they look together. */
FocusScope {
    id: fields

    required property CategoryForm form

    /** The colours of the product, and a few between them. */
    readonly property var palette: ["21D6D1", "63DE91", "FFB347", "FF571A", "FF5A4F", "D152F0", "8A61E6", "5B8DEF"]
    readonly property var names: ["Cyan", "Vert", "Ambre", "Orange", "Rouge", "Magenta", "Violet", "Bleu"]

    implicitHeight: column.height

    Column {
        id: column

        spacing: Metrics.large
        width: parent.width

        Label {
            color: Colors.secondary
            font: Typography.label
            text: "NOUVELLE CATÉGORIE"
        }
        Row {
            spacing: Metrics.medium
            width: parent.width

            CategoryTile {
                id: tile

                hue: CategoryVisuals.hue(fields.form.colorHex)
                symbol: CategoryVisuals.symbol("new")
            }
            Label {
                anchors.verticalCenter: parent.verticalCenter
                color: fields.form.isValid ? Colors.text : Colors.secondary
                font: Typography.section
                text: fields.form.isValid ? fields.form.name : "Sans nom"
                width: parent.width - tile.width - parent.spacing
            }
        }
        LabelledField {
            focus: true
            hint: "Ex. Recherche"
            label: "Nom"
            text: fields.form.name
            width: parent.width
            onEdited: text => fields.form.name = text
        }
        Column {
            spacing: Metrics.small

            Label {
                color: Colors.secondary
                font: Typography.small
                text: "Couleur"
            }
            Row {
                spacing: Metrics.small

                Repeater {
                    model: fields.palette

                    ColorSwatch {
                        required property int index
                        required property string modelData

                        checked: fields.form.colorHex === modelData
                        hue: Qt.color("#" + modelData)
                        text: fields.names[index]
                        onClicked: fields.form.colorHex = modelData
                    }
                }
            }
        }
    }
}
