pragma ComponentBehavior: Bound

import QtQuick
import VORNELDesignSystem

/** What becomes of some skills, and which they are. Without any, nothing. */
Column {
    id: group

    required property string title
    required property var slugs
    required property string symbol
    required property color symbolColor

    spacing: Metrics.small
    visible: slugs.length > 0

    Accessible.name: title
    Accessible.role: Accessible.List

    Label {
        color: Colors.secondary
        text: group.title
        width: parent.width
        wrapMode: Text.Wrap
    }
    Flow {
        spacing: Metrics.large
        width: parent.width

        Repeater {
            model: group.slugs

            Row {
                id: row

                required property string modelData

                spacing: Metrics.tiny

                Accessible.name: modelData
                Accessible.role: Accessible.ListItem

                Symbol {
                    anchors.verticalCenter: parent.verticalCenter
                    color: group.symbolColor
                    height: Metrics.symbol
                    name: group.symbol
                    width: Metrics.symbol
                }
                Label {
                    anchors.verticalCenter: parent.verticalCenter
                    font: Typography.control
                    text: row.modelData
                    width: Math.min(implicitWidth, group.width - Metrics.symbol - row.spacing)
                }
            }
        }
    }
}
