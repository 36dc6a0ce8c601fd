import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A category to choose, with its name above. */
Field {
    id: choice

    required property AppModel model
    required property string currentID

    /** What stands for no category, which is an empty identifier; without a text, it can't be chosen. */
    property string noneText

    readonly property bool isNone: currentID === "" && noneText !== ""
    readonly property skillCategory category: {
        void model.overview; // which the categories come from
        return model.category(currentID);
    }

    signal chosen(id: string)

    label: "Catégorie"

    ActionButton {
        id: button

        focus: true
        leftPadding: 0
        rightPadding: Metrics.controlHeight
        text: choice.isNone ? choice.noneText : choice.category.name
        width: parent.width

        Accessible.description: "Changer de catégorie"
        Accessible.name: "Catégorie, " + text
        onClicked: choices.popup(button, 0, button.height + Metrics.tiny)

        contentItem: CategoryRailLine {
            color: Colors.text
            symbol: choice.isNone ? "circle" : CategoryVisuals.symbol(choice.category.id)
            symbolColor: choice.isNone ? Colors.muted : CategoryVisuals.hue(choice.category.colorHex)
            text: button.text
        }

        Symbol {
            anchors.right: parent.right
            anchors.rightMargin: Metrics.medium
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.secondary
            height: Metrics.symbol
            name: "chevron-down"
            width: Metrics.symbol
        }
        CategoryMenu {
            id: choices

            currentID: choice.currentID === "" ? "" : choice.category.id
            model: choice.model
            noneText: choice.noneText
            width: button.width
            onChosen: id => choice.chosen(id)
        }
    }
}
