import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Stands in place of the cards: the library is empty, or its filters and the search hide every skill. */
StateView {
    id: view

    required property AppModel model
    required property CardPage page

    signal creationAsked
    signal importAsked

    readonly property bool isCategoryEmpty: !page.isLibraryEmpty && model.searchText.trim() === ""
        && model.selectedMaturity === undefined && !model.filters.isSet

    line: {
        if (page.isLibraryEmpty)
            return "Créez la première, importez celles que vos assistants ont déjà, ou ajoutez un dossier ou une archive.";
        return isCategoryEmpty ? "La catégorie «\u00A0" + page.categoryName + "\u00A0» est vide."
            : "Aucune compétence ne correspond à ces critères.";
    }
    symbol: page.isLibraryEmpty || isCategoryEmpty ? "layout-grid" : "search"
    title: page.isLibraryEmpty ? "Aucune compétence" : "Aucun résultat"

    ActionButton {
        enabled: !view.model.isWorking
        role: ActionButton.Primary
        symbol: "plus"
        text: "Créer une compétence"
        visible: view.page.isLibraryEmpty || view.isCategoryEmpty
        onClicked: view.creationAsked()
    }
    ActionButton {
        enabled: !view.model.isWorking
        symbol: "download"
        text: "Importer…"
        visible: view.page.isLibraryEmpty
        onClicked: view.importAsked()
    }
    AdditionButton {
        model: view.model
        visible: view.page.isLibraryEmpty
    }
    ActionButton {
        text: "Effacer la recherche"
        visible: !view.page.isLibraryEmpty && view.model.searchText !== ""
        onClicked: view.model.searchText = ""
    }
    ActionButton {
        symbol: "x"
        text: view.isCategoryEmpty ? "Toutes les compétences" : "Effacer les filtres"
        visible: !view.page.isLibraryEmpty && view.page.isFiltered
        onClicked: view.page.clearFilters()
    }
}
