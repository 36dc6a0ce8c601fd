import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The menu that shows only the skills of one maturity. It says which, at the width of its own name. */
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
