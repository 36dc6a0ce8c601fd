import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The name and the colour of a category, and how they look together. */
FocusScope {
    id: fields

    required property CategoryForm form

    /** Puts the keyboard into the name. */
    function begin(): void {
        name.forceActiveFocus(Qt.OtherFocusReason);
    }

    implicitHeight: column.height

    Column {
        id: column

        spacing: Metrics.large
        width: parent.width

        Row {
            spacing: Metrics.medium
            width: parent.width

            CategoryTile {
                id: tile

                categoryID: fields.form.original.id
                height: 44
                hue: CategoryVisuals.hue(fields.form.colorHex)
                width: 44
            }
            Column {
                anchors.verticalCenter: parent.verticalCenter
                spacing: Metrics.tiny
                width: parent.width - tile.width - parent.spacing

                Label {
                    color: Colors.secondary
                    font: Typography.label
                    text: fields.form.isNew ? "NOUVELLE CATÉGORIE" : "CATÉGORIE"
                    width: parent.width
                }
                Label {
                    readonly property string typed: fields.form.name.trim()

                    color: typed === "" ? Colors.secondary : Colors.text
                    font: Typography.section
                    text: typed === "" ? "Sans nom" : typed
                    width: parent.width
                }
            }
        }
        LabelledField {
            id: name

            focus: true
            hint: "Ex. Recherche"
            label: "Nom"
            note: "De 1 à " + fields.form.longestName + " caractères."
            problem: fields.form.nameProblem
            text: fields.form.name
            width: parent.width
            onEdited: text => fields.form.name = text
        }
        CategoryColors {
            form: fields.form
            width: parent.width
        }
    }
}
