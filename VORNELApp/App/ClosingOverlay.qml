import QtQuick
import VORNELDesignSystem

/** Covers the window while closing waits for the operation that still runs. */
Rectangle {
    color: Colors.scrim

    MouseArea {
        anchors.fill: parent
    }
    Surface {
        anchors.centerIn: parent
        height: text.height + 2 * Metrics.huge
        width: text.width

        StateView {
            id: text

            anchors.verticalCenter: parent.verticalCenter
            line: "VORNEL termine l’opération en cours."
            title: "Fermeture"
            width: 400
        }
    }
}
