import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A button with a menu of exclusive choices. It shows the chosen one, and is always as wide as its own name needs. */
ActionButton {
    id: filter

    required property string name
    required property string title
    required property var texts
    required property int current

    /** What the user reads for choosing none; empty where one has to be chosen. */
    property string noneText

    /** The choice that the button's own name stands for. */
    property int unspoken: -1

    signal chosen(index: int)

    implicitWidth: isCompact ? implicitHeight : Math.ceil(metrics.advanceWidth(name)) + Metrics.symbol + Metrics.small + 2 * Metrics.large
    text: current === unspoken ? name : texts[current]
    onClicked: {
        menu.make();
        (menu.item as ActionMenu).open();
    }

    Accessible.description: current === -1 ? noneText : texts[current]
    Accessible.name: name

    FontMetrics {
        id: metrics

        font: filter.font
    }
    DeferredItem {
        id: menu

        file: "ChoiceMenu.qml"
        properties: ({ filter: filter })
        y: filter.height + Metrics.tiny
    }
}
