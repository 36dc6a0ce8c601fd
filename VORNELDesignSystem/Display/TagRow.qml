pragma ComponentBehavior: Bound

import QtQuick

/** Keywords on one line: those that have room, and how many more there are. */
Row {
    id: row

    required property var tags

    /** How many tags are made, and at most shown. */
    property int most: 3

    readonly property int shownCount: {
        let count = 0;
        let end = 0;
        for (; count < Math.min(tags.length, most); ++count) {
            end += tagWidth(tags[count]);
            if (end + (count + 1 < tags.length ? rest.width : 0) > width)
                break;
            end += spacing;
        }
        return count;
    }

    function tagWidth(tag: string): real {
        return Math.ceil(Math.min(Typography.smallMetrics.advanceWidth(tag), 160)) + 2 * Metrics.small;
    }

    spacing: Metrics.small - 2

    Repeater {
        model: row.most

        Tag {
            required property int index

            text: row.tags[index] ?? ""
            visible: index < row.shownCount
        }
    }
    Text {
        id: rest

        anchors.verticalCenter: parent.verticalCenter
        color: Colors.secondary
        font: Typography.small
        renderType: Text.NativeRendering
        text: "+" + (row.tags.length - row.shownCount)
        visible: row.tags.length > row.shownCount
        width: 24
    }
}
