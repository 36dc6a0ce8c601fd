import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The page shown of how many, and the ways to its neighbours. */
Row {
    id: controls

    required property CardPage page

    spacing: Metrics.tiny

    ActionButton {
        enabled: controls.page.hasPreviousPage
        isCompact: true
        symbol: "chevron-left"
        text: "Page précédente"
        onClicked: --controls.page.currentPage
    }
    Label {
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.secondary
        horizontalAlignment: Text.AlignHCenter
        text: controls.page.currentPage + " sur " + controls.page.pageCount
        width: Math.max(56, implicitWidth)
    }
    ActionButton {
        enabled: controls.page.hasNextPage
        isCompact: true
        symbol: "chevron-right"
        text: "Page suivante"
        onClicked: ++controls.page.currentPage
    }
}
