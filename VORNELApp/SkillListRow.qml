import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** One skill of a list. */
T.ItemDelegate {
    id: row

    required property int index
    required property skillSummary record
    property bool isChoosable: true

    implicitHeight: 56
    enabled: isChoosable
    focusPolicy: Qt.ClickFocus
    highlighted: activeFocus
    hoverEnabled: true
    text: record.displayName
    onActiveFocusChanged: if (activeFocus) ListView.view.currentIndex = index

    Accessible.description: record.slug
    Accessible.name: text
    Accessible.role: Accessible.ListItem
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()

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
    contentItem: Column {
        leftPadding: Metrics.medium
        rightPadding: Metrics.medium
        spacing: Metrics.tiny + 2
        topPadding: Metrics.small + 2

        Label {
            font: Typography.control
            text: row.text
            width: parent.width - 2 * Metrics.medium
        }
        Label {
            color: Colors.secondary
            font: Typography.small
            text: row.record.summary
            width: parent.width - 2 * Metrics.medium
        }
    }
}
