import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** One category to filter the library by, or all of them. Skills can be dropped on a category. */
T.RadioButton {
    id: entry

    required property int index
    required property categoryEntry record
    required property bool isChosen
    required property bool isDropTarget

    implicitHeight: Metrics.controlHeight
    autoExclusive: false
    checked: isChosen
    focusPolicy: Qt.ClickFocus
    hoverEnabled: true
    text: record.category.name
    onActiveFocusChanged: if (activeFocus && index >= 0) ListView.view.currentIndex = index // it is -1 once the row goes

    Accessible.name: record.spokenName
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: if (enabled) clicked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()
    onClicked: checked = Qt.binding(() => isChosen) // a click checks by itself

    background: Rectangle {
        border.color: Colors.accent
        border.width: entry.isDropTarget || entry.activeFocus && entry.focusReason !== Qt.MouseFocusReason ? Metrics.focusWidth : 0
        color: entry.isDropTarget || entry.isChosen ? Colors.tint(Colors.accent) : entry.hovered ? Colors.hover : "transparent"
        radius: Metrics.controlRadius
    }
    contentItem: CategoryRailLine {
        color: entry.isChosen ? Colors.text : Colors.secondary
        number: entry.record.count
        symbol: entry.record.category.id === "" ? "layout-grid" : CategoryVisuals.artwork(entry.record.category.id)
        symbolColor: CategoryVisuals.hue(entry.record.category.colorHex)
        symbolSize: entry.record.category.id === "" ? Metrics.symbol : Metrics.symbol + Metrics.tiny
        text: entry.text
    }
}
