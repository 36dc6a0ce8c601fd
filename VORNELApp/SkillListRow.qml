import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** One skill of a list. */
T.ItemDelegate {
    id: row

    required property skillSummary record
    property bool isChoosable: true

    implicitHeight: 56
    enabled: isChoosable
    focusPolicy: Qt.StrongFocus
    highlighted: ListView.isCurrentItem && ListView.view.activeFocus
    hoverEnabled: true
    text: record.displayName

    Accessible.description: record.slug
    Accessible.name: text
    Accessible.role: Accessible.ListItem
    Keys.onEnterPressed: click()
    Keys.onReturnPressed: click()

    background: Rectangle {
        color: row.hovered ? Colors.hover : "transparent"
        radius: Metrics.controlRadius

        Rectangle {
            anchors.fill: parent
            border.color: Colors.accent
            border.width: Metrics.focusWidth
            color: "transparent"
            radius: parent.radius
            visible: row.highlighted
        }
    }
    contentItem: Item {
        Label {
            id: name

            anchors.left: parent.left
            anchors.leftMargin: Metrics.medium
            anchors.right: parent.right
            anchors.rightMargin: Metrics.medium
            font: Typography.control
            text: row.text
            y: Metrics.small
        }
        Label {
            anchors.left: name.left
            anchors.right: name.right
            anchors.top: name.bottom
            anchors.topMargin: Metrics.tiny
            color: Colors.secondary
            font: Typography.small
            text: row.record.summary
        }
    }
}
