import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A category to choose, with its name above. */
Column {
    id: choice

    required property AppModel model
    required property string currentID

    readonly property skillCategory category: {
        void model.overview; // which the categories come from
        return model.category(currentID);
    }

    signal chosen(id: string)

    spacing: Metrics.small

    Label {
        color: Colors.secondary
        font: Typography.small
        text: "Catégorie"

        Accessible.ignored: true
    }
    ActionButton {
        id: button

        leftPadding: 0
        rightPadding: Metrics.controlHeight
        text: choice.category.name
        width: parent.width

        Accessible.description: "Changer de catégorie"
        Accessible.name: "Catégorie, " + text
        onClicked: choices.popup(button, 0, button.height + Metrics.tiny)

        contentItem: CategoryRailLine {
            color: Colors.text
            symbol: CategoryVisuals.symbol(choice.category.id)
            symbolColor: CategoryVisuals.hue(choice.category.colorHex)
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

            currentID: choice.category.id
            model: choice.model
            width: button.width
            onChosen: id => choice.chosen(id)
        }
    }
}
