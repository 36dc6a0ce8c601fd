import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** One skill of a list. */
T.ItemDelegate {
    id: row

    required property int index
    required property skillEntry record
    property bool isChoosable: true

    readonly property bool isCurrent: ListView.isCurrentItem

    signal menuAsked(place: point)

    implicitWidth: ListView.view?.width ?? 0
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    focusPolicy: Qt.ClickFocus
    horizontalPadding: Metrics.huge + Metrics.large
    hoverEnabled: true
    leftInset: Metrics.huge
    rightInset: Metrics.huge
    text: record.skill.displayName
    verticalPadding: Metrics.medium
    onActiveFocusChanged: if (activeFocus && index >= 0) ListView.view.currentIndex = index // it is -1 once its skill has left the list

    Accessible.description: record.description
    Accessible.name: text
    Accessible.role: Accessible.ListItem
    Accessible.onPressAction: if (enabled) clicked()

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => {
            row.forceActiveFocus(Qt.MouseFocusReason);
            row.menuAsked(eventPoint.position);
        }
    }

    background: Rectangle {
        border.color: row.record.isSelected ? Colors.accent : row.hovered && row.isChoosable ? Colors.muted : Colors.line
        border.width: Metrics.hairline
        color: row.record.isSelected ? Qt.tint(Colors.raised, Qt.alpha(Colors.accent, 0.08))
            : row.hovered && row.isChoosable ? Colors.hover : Colors.raised
        radius: Metrics.cardRadius

        FocusRing {
            control: row
            radius: Metrics.cardRadius + 2 * Metrics.focusWidth
        }
    }
}
