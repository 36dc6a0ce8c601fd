pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The choices of a filter under its title; the first one may be to choose none of them. */
ActionMenu {
    id: menu

    required property ChoiceFilter filter

    title: filter.title

    Label {
        color: Colors.secondary
        font: Typography.small
        height: Metrics.controlHeight
        leftPadding: Metrics.medium
        text: menu.title
        verticalAlignment: Text.AlignVCenter
    }
    Instantiator {
        active: menu.filter.noneText !== ""

        ActionMenuItem {
            isChosen: menu.filter.current === -1
            text: menu.filter.noneText
            onTriggered: menu.filter.chosen(-1)
        }

        onObjectAdded: (index, object) => menu.insertItem(1, object)
        onObjectRemoved: (index, object) => menu.removeItem(object)
    }
    Instantiator {
        model: menu.filter.texts

        ActionMenuItem {
            required property int index
            required property string modelData

            isChosen: menu.filter.current === index
            text: modelData
            onTriggered: menu.filter.chosen(index)
        }

        onObjectAdded: (index, object) => menu.insertItem(menu.count, object)
        onObjectRemoved: (index, object) => menu.removeItem(object)
    }
}
