import QtQuick
import VORNELDesignSystem

/** A line of one file as Claude has it and, beside it, as Codex does. */
Rectangle {
    id: row

    required property int index
    required property string leftText
    required property int leftNumber
    required property string rightText
    required property int rightNumber
    required property bool isChanged

    readonly property bool isRemark: leftNumber === 0 && rightNumber === 0

    implicitHeight: Math.max(left.height, right.height)
    border.color: activeFocus ? Colors.accent : "transparent"
    border.width: Metrics.hairline
    color: isChanged ? Qt.alpha(Colors.warning, 0.12) : "transparent"

    Accessible.focusable: true
    Accessible.name: isChanged ? "Claude\u00A0: " + leftText + ", Codex\u00A0: " + rightText : leftText.trim() === "" ? "ligne vide" : leftText
    Accessible.role: Accessible.ListItem

    SideBySideText {
        id: left

        isChanged: row.isChanged
        number: row.leftNumber
        text: row.leftText
        width: (row.width - Metrics.large) / 2
    }
    SideBySideText {
        id: right

        isChanged: row.isChanged
        number: row.rightNumber
        text: row.isRemark ? "" : row.rightText
        width: left.width
        x: row.width - width
    }
}
