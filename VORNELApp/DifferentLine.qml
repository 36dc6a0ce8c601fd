import QtQuick
import VORNELDesignSystem

/** A line of a comparison, with its numbers on both sides. */
Rectangle {
    id: row

    required property string text
    required property string sign
    required property int oldNumber
    required property int newNumber

    readonly property color hue: sign === "+" ? Colors.success : Colors.danger

    implicitHeight: content.height
    color: sign === "" ? "transparent" : Qt.alpha(hue, 0.12)

    Row {
        spacing: Metrics.small
        width: parent.width

        Label {
            color: Colors.muted
            font: Typography.code
            horizontalAlignment: Text.AlignRight
            text: row.oldNumber || ""
            width: 40
        }
        Label {
            color: Colors.muted
            font: Typography.code
            horizontalAlignment: Text.AlignRight
            text: row.newNumber || ""
            width: 40
        }
        Label {
            color: row.hue
            font: Typography.code
            text: row.sign
            width: 12
        }
        Label {
            id: content

            color: row.sign === "" ? Colors.secondary : Colors.text
            font: Typography.code
            text: row.text
            width: parent.width - x
            wrapMode: Text.Wrap
        }
    }
}
