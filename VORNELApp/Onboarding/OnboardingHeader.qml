import QtQuick
import VORNELDesignSystem

/** The product's name, and how far the onboarding is. `step` counts from 0. */
Item {
    id: header

    required property int step

    readonly property int total: 5

    function twoDigits(number: int): string {
        return String(number).padStart(2, "0");
    }

    implicitHeight: 32

    ProductMark {
        id: mark

        anchors.verticalCenter: parent.verticalCenter
        height: 24
        width: 24
    }
    Label {
        anchors.left: mark.right
        anchors.leftMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        font: Typography.section
        text: "VORNEL"
    }
    Label {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.secondary
        font: Typography.label
        text: header.twoDigits(header.step + 1) + " / " + header.twoDigits(header.total)

        Accessible.name: "Étape " + (header.step + 1) + " sur " + header.total
    }
}
