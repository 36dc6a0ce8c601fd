import QtQuick
import VORNELDesignSystem

/** Lies over the window while it waits for the operation that still runs, and then goes. */
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
