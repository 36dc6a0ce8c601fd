import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Shown while the workspace is opened. */
FocusScope {
    required property AppModel model

    Accessible.name: "Démarrage"
    Accessible.role: Accessible.Pane

    Column {
        anchors.centerIn: parent
        spacing: Metrics.huge

        BusyGlyph {
            anchors.horizontalCenter: parent.horizontalCenter
            height: 56
            width: 56
        }
        Label {
            font: Typography.title
            text: "Ouverture d’VORNEL"
        }
    }
}
