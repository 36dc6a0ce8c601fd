import QtQuick
import VORNELDesignSystem

/**
 * Tells above a screen what has become of a text. Its children are the actions, beside the text or, where there is no
 * room, below it.
 */
Rectangle {
    id: notice

    required property string text
    property color tone: Colors.warning
    default property alias actions: row.data

    readonly property bool isStacked: row.width > width / 2

    implicitHeight: (isStacked ? line.height + Metrics.small + row.height : Math.max(line.height, row.height)) + 2 * Metrics.small
    border.color: tone
    border.width: Metrics.hairline
    color: Colors.tint(tone)
    radius: Metrics.controlRadius

    Accessible.name: text
    Accessible.role: Accessible.AlertMessage

    Label {
        id: line

        height: implicitHeight
        lineHeight: 1.15
        text: notice.text
        width: notice.width - x - Metrics.medium - (notice.isStacked || row.width === 0 ? 0 : row.width + Metrics.small)
        wrapMode: Text.Wrap
        x: Metrics.large
        y: notice.isStacked ? Metrics.small : (notice.height - height) / 2

        Accessible.ignored: true
    }
    Row {
        id: row

        spacing: Metrics.small
        x: notice.width - width - Metrics.small
        y: notice.isStacked ? notice.height - height - Metrics.small : (notice.height - height) / 2
    }
}
