import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Asks for the choice between two versions, and offers to keep all those of one assistant. */
Item {
    id: header

    required property int count

    /** The user picks this side of every collision. */
    signal allChosen(choice: int)

    implicitHeight: Math.max(line.height, all.visible ? all.height : 0)

    Label {
        id: line

        anchors.left: parent.left
        anchors.right: all.left
        anchors.rightMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        bottomPadding: all.visible ? 0 : Metrics.tiny
        color: Colors.secondary
        text: "Deux versions portent le même nom. Choisissez celle à garder."
        wrapMode: Text.Wrap
    }
    Row {
        id: all

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small
        visible: header.count > 1
        width: visible ? implicitWidth : 0

        ActionButton {
            text: "Tout garder de Claude"
            onClicked: header.allChosen(Vornel.CollisionChoice.claude)
        }
        ActionButton {
            text: "Tout garder de Codex"
            onClicked: header.allChosen(Vornel.CollisionChoice.codex)
        }
    }
}
