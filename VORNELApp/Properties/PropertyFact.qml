import QtQuick
import VORNELDesignSystem

/** Something that is known of a skill, with its name before it. */
Item {
    id: fact

    required property string label
    required property string value

    implicitHeight: 24
    visible: value !== ""

    Accessible.name: label + "\u00A0: " + value
    Accessible.role: Accessible.StaticText

    Label {
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.secondary
        font: Typography.small
        text: fact.label

        Accessible.ignored: true
    }
    Label {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        font: Typography.small
        text: fact.value

        Accessible.ignored: true
    }
}
