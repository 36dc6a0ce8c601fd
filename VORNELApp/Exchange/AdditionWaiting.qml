import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Shown until there is something to review: it is read, or that has failed. */
FocusScope {
    id: waiting

    required property Addition addition

    Column {
        anchors.centerIn: parent
        spacing: Metrics.huge
        visible: waiting.addition.isReviewing

        BusyGlyph {
            anchors.horizontalCenter: parent.horizontalCenter
            height: 40
            width: 40
        }
        Label {
            color: Colors.secondary
            text: "Lecture de ce qui est à ajouter…"
        }
    }
    StateView {
        anchors.centerIn: parent
        hue: Colors.danger
        line: waiting.addition.problem
        symbol: "triangle-alert"
        title: "Rien n’est ajouté"
        visible: !waiting.addition.isReviewing
        width: parent.width - 2 * Metrics.huge

        ActionButton {
            focus: true
            symbol: "rotate-cw"
            text: "Relancer l’analyse"
            onClicked: waiting.addition.review()
        }
    }
}
