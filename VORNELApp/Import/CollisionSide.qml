import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What one assistant holds of a collision, and the choice to keep it. */
Surface {
    id: side

    required property comparedFolder folder
    property bool isKnown: false
    property bool isChosen: false

    signal chosen

    implicitHeight: texts.height + 2 * Metrics.medium
    border.color: isChosen ? Colors.accent : Colors.line

    Accessible.name: title.text + (mark.visible ? ", " + mark.text : "") + ", " + content.text + ", " + moment.text
    Accessible.role: Accessible.Grouping

    Column {
        id: texts

        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        anchors.right: choice.left
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.tiny

        Row {
            height: mark.height // with or without it
            spacing: Metrics.small

            Label {
                id: title

                anchors.verticalCenter: parent.verticalCenter
                font: Typography.section
                text: side.folder.assistant
            }
            Tag {
                id: mark

                anchors.verticalCenter: parent.verticalCenter
                text: "le plus récent"
                visible: side.folder.isNewer
            }
        }
        Label {
            id: content

            color: Colors.secondary
            text: side.isKnown ? side.folder.contentText : ""
            width: parent.width
        }
        Label {
            id: moment

            color: Colors.secondary
            text: side.folder.momentText
            width: parent.width
        }
    }
    ChoiceButton {
        id: choice

        anchors.right: parent.right
        anchors.rightMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        isChosen: side.isChosen
        text: "Garder " + side.folder.assistant
        onClicked: side.chosen()
    }
}
