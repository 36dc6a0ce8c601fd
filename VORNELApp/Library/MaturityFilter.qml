import QtQuick
import VORNELApp
import VORNELDesignSystem

/**
 * The button with the menu that filters by maturity. It shows the chosen one, and is always as wide as its own name
 * needs.
 */
ActionButton {
    id: filter

    required property AppModel model
    required property var maturityTexts

    readonly property string name: "Filtrer par état"
    readonly property bool isSet: model.selectedMaturity !== undefined

    implicitWidth: isCompact ? implicitHeight : Math.ceil(metrics.advanceWidth(name)) + Metrics.symbol + Metrics.small + 2 * Metrics.large
    symbol: "gauge"
    text: isSet ? maturityTexts[model.selectedMaturity] : name
    onClicked: {
        menu.make();
        (menu.item as MaturityMenu).open();
    }

    Accessible.description: isSet ? text : "Tous les états"
    Accessible.name: name

    FontMetrics {
        id: metrics

        font: filter.font
    }
    DeferredItem {
        id: menu

        file: "MaturityMenu.qml"
        properties: ({ maturityTexts: filter.maturityTexts, model: filter.model })
        y: filter.height + Metrics.tiny
    }
}
