import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The category of the selected skill, and the choice of another. */
Row {
    id: picker

    required property AppModel model

    readonly property skillCategory category: {
        void model.overview; // which the categories come from
        return model.category(model.selectedSkill?.manifest.category ?? "");
    }

    spacing: Metrics.medium

    Label {
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.secondary
        font: Typography.label
        text: "CATÉGORIE"
    }
    ActionButton {
        id: button

        enabled: !picker.model.isWorking
        symbol: CategoryVisuals.symbol(picker.category.id)
        symbolColor: CategoryVisuals.hue(picker.category.colorHex)
        text: picker.category.name
        width: Math.min(implicitWidth, picker.width - x)

        Accessible.description: "Changer de catégorie"
        Accessible.name: "Catégorie, " + picker.category.name
        onClicked: menu.popup(button, 0, button.height + Metrics.tiny)

        Hint {
            control: button
            text: "Changer de catégorie"
            visible: button.hovered
        }
        CategoryMenu {
            id: menu

            currentID: picker.category.id
            model: picker.model
            onChosen: id => {
                if (id !== picker.category.id)
                    picker.model.assignSelectedSkill(id);
            }
        }
    }
}
