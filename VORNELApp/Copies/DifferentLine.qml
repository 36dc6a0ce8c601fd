import QtQuick
import VORNELDesignSystem

/** A line of a comparison, with its numbers on both sides. */
Rectangle {
    id: row

    required property int index
    required property string text
    required property string sign
    required property int oldNumber
    required property int newNumber
    property bool isSelected: false

    readonly property color hue: sign === "+" ? Colors.success : Colors.danger

    implicitHeight: content.height
    color: isSelected ? Qt.alpha(Colors.accent, 0.3) : sign === "" ? "transparent" : Qt.alpha(hue, 0.12)

    Accessible.description: sign === "" ? "" : "marquée " + sign
    Accessible.focusable: true
    Accessible.name: text.trim() === "" ? "ligne vide" : text
    Accessible.role: Accessible.ListItem
    Accessible.selectable: true
    Accessible.selected: isSelected

    Row {
        spacing: Metrics.small
        width: parent.width

        Label {
            color: Colors.muted
            font: Typography.code
            horizontalAlignment: Text.AlignRight
            text: row.oldNumber || ""
            width: 40

            Accessible.ignored: true
        }
        Label {
            color: Colors.muted
            font: Typography.code
            horizontalAlignment: Text.AlignRight
            text: row.newNumber || ""
            width: 40

            Accessible.ignored: true
        }
        Label {
            color: row.hue
            font: Typography.code
            text: row.sign
            width: 12

            Accessible.ignored: true
        }
        Label {
            id: content

            color: row.sign === "" ? Colors.secondary : Colors.text
            font: Typography.code
            text: row.text
            width: parent.width - x
            wrapMode: Text.Wrap

            Accessible.ignored: true
        }
    }
}
