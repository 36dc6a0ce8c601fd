import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** One skill of the library; hidden where the page has none. */
T.ItemDelegate {
    id: card

    required property int index
    required property libraryCard record
    required property bool isSelecting
    required property int mostTags

    signal selectionAsked
    signal rangeAsked
    signal menuAsked(place: point)

    /** Whether a mouse or a pen is pressed on it. A finger scrolls instead. */
    readonly property alias isHeld: hold.active

    readonly property skillSummary skill: record.skill
    readonly property color hue: CategoryVisuals.hue(record.category.colorHex)
    readonly property color fill: down ? Colors.line : hovered ? Colors.hover : Colors.raised

    implicitHeight: Metrics.cardHeight
    focusPolicy: Qt.ClickFocus
    highlighted: activeFocus
    hoverEnabled: true
    padding: Metrics.large
    text: skill.displayName
    visible: record.isShown

    Accessible.description: `${skill.slug}, ${record.category.name}, ${skill.maturityText}, ${record.stateText}`
        + (record.problem === "" ? "" : ", " + record.problem) + (record.errorText === "" ? "" : ", " + record.errorText) + (record.isSelected ? ", sélectionnée" : "")
    Accessible.name: text
    Accessible.role: Accessible.ListItem
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onSpacePressed: selectionAsked() // instead of a click

    MouseArea {
        anchors.fill: parent
        z: 1 // above the content, and for clicks with these keys alone
        onClicked: mouse => mouse.modifiers & Qt.ShiftModifier ? card.rangeAsked() : card.selectionAsked()
        onPressed: mouse => mouse.accepted = (mouse.modifiers & (Qt.ControlModifier | Qt.ShiftModifier)) !== 0
    }

    PointHandler {
        id: hold

        acceptedDevices: PointerDevice.Mouse | PointerDevice.Stylus
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => {
            card.forceActiveFocus(Qt.MouseFocusReason);
            card.menuAsked(eventPoint.position);
        }
    }

    background: Rectangle {
        border.color: card.record.isSelected ? Colors.accent : card.hovered ? Colors.muted : Colors.line
        border.width: Metrics.hairline
        color: card.record.isSelected ? Qt.tint(card.fill, Qt.alpha(Colors.accent, 0.08)) : card.fill
        radius: Metrics.cardRadius
    }
    contentItem: SkillCardContent {
        hue: card.hue
        isSelecting: card.isSelecting
        mostTags: card.mostTags
        record: card.record
    }
}
