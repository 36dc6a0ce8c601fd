import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Stands in place of the rows: there is no skill, or the search finds none. */
StateView {
    id: view

    required property SkillList skills
    required property string emptyTitle
    required property string emptyLine
    required property string emptySymbol
    property color emptyHue: Colors.secondary

    readonly property bool isEmpty: skills.totalCount === 0

    hue: isEmpty ? emptyHue : Colors.secondary
    line: isEmpty ? emptyLine : "Aucune compétence ne correspond à votre recherche."
    symbol: isEmpty ? emptySymbol : "search"
    title: isEmpty ? emptyTitle : "Aucun résultat"
    visible: skills.count === 0

    ActionButton {
        text: "Effacer la recherche"
        visible: !view.isEmpty
        onClicked: view.skills.model.searchText = ""
    }
}
