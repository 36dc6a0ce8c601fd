import QtQuick
import VORNELDesignSystem

/** What one side of a comparison has in a line, after its number. */
Row {
    id: side

    required property int number
    required property string text
    required property bool isChanged

    spacing: Metrics.small

    Label {
        color: Colors.muted
        font: Typography.code
        horizontalAlignment: Text.AlignRight
        text: side.number || ""
        width: 40

        Accessible.ignored: true
    }
    Label {
        color: side.isChanged ? Colors.text : Colors.secondary
        font: Typography.code
        text: side.text
        width: side.width - x
        wrapMode: Text.Wrap

        Accessible.ignored: true
    }
}
