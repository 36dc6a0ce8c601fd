import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What the library shows, and what narrows it. */
Item {
    id: header

    required property AppModel model
    required property CardPage page
    required property SkillSelection selection

    signal creationAsked

    /** Opens the menu of what can be added, for the keyboard. */
    function openAddition(): void {
        addition.openForKeyboard();
    }

    readonly property bool isNarrow: width < 700
    readonly property bool hasResults: page.skillCount > 0

    implicitHeight: 88 + (chips.isUseful ? chips.height + Metrics.tiny : 0)

    Label {
        id: title

        anchors.left: parent.left
        anchors.leftMargin: Metrics.huge
        anchors.top: parent.top
        anchors.topMargin: Metrics.huge
        font: Typography.title
        text: "Compétences"
    }
    Label {
        anchors.baseline: title.baseline
        anchors.left: title.right
        anchors.leftMargin: Metrics.medium
        color: Colors.secondary
        font: Typography.lead
        text: header.page.skillCount
    }
    Label {
        id: scope

        anchors.left: title.left
        anchors.verticalCenter: clear.verticalCenter
        color: Colors.secondary
        font: Typography.label
        text: header.model.selectedCategory === "" ? "TOUTES LES CATÉGORIES" : header.page.categoryName
        width: Math.min(implicitWidth, parent.width / 2)

        Accessible.name: header.model.selectedCategory === "" ? text : header.page.categoryName
    }
    ActionButton {
        id: clear

        anchors.left: scope.right
        anchors.leftMargin: Metrics.small
        anchors.top: title.bottom
        anchors.topMargin: Metrics.tiny
        font: Typography.small
        height: 24
        isFlat: true
        leftPadding: Metrics.small
        symbol: "x"
        text: "Effacer les filtres"
        visible: header.page.isFiltered && header.hasResults
        onClicked: header.page.clearFilters()
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: Metrics.huge
        anchors.top: parent.top
        anchors.topMargin: Metrics.huge
        spacing: Metrics.small

        ActionButton {
            enabled: header.selection.isSelecting || header.hasResults
            isCompact: header.isNarrow
            symbol: "circle-check"
            text: header.selection.isSelecting ? "Terminer la sélection" : "Sélectionner"
            onClicked: header.selection.isSelecting ? header.selection.end() : header.selection.begin()
        }
        ChoiceFilter {
            current: header.model.selectedMaturity ?? -1
            isCompact: header.isNarrow
            name: "Filtrer par état"
            noneText: "Tous les états"
            symbol: "gauge"
            texts: header.page.maturityTexts
            title: "Maturité"
            onChosen: index => header.model.selectedMaturity = index === -1 ? undefined : index
        }
        ChoiceFilter {
            current: header.model.filters.order
            isCompact: true
            name: "Trier"
            symbol: "arrow-down-narrow-wide"
            texts: header.model.filters.orderTexts
            title: "Ordre"
            onChosen: index => header.model.filters.order = index
        }
        AdditionButton {
            id: addition

            isCompact: true
            model: header.model
        }
        ActionButton {
            enabled: !header.model.isWorking
            isCompact: true
            symbol: "plus"
            text: "Nouvelle compétence"
            onClicked: header.creationAsked()
        }
    }
    TagFilters {
        id: chips

        anchors.left: title.left
        anchors.right: parent.right
        anchors.rightMargin: Metrics.huge
        anchors.top: clear.bottom
        anchors.topMargin: Metrics.tiny
        model: header.model
        visible: isUseful
    }
}
