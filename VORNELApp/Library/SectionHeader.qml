import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The category of the cards below, and how many skills it has on all pages. */
Item {
    id: header

    required property libraryHeading record

    implicitHeight: 44
    visible: record.isShown

    Label {
        id: name

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.medium
        font: Typography.section
        text: header.record.category.name
        width: Math.min(implicitWidth, parent.width - count.width - Metrics.medium)

        Accessible.role: Accessible.Heading
    }
    Label {
        id: count

        anchors.baseline: name.baseline
        anchors.left: name.right
        anchors.leftMargin: Metrics.medium
        color: Colors.secondary
        font: Typography.small
        text: header.record.countText
    }
}
