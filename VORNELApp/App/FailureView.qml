import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Shown when the workspace can't be opened. */
FocusScope {
    id: failure

    required property AppModel model

    Accessible.name: "Échec du démarrage"
    Accessible.role: Accessible.Pane

    Surface {
        anchors.centerIn: parent
        height: content.height + 2 * Metrics.page
        width: 560

        Column {
            id: content

            anchors.centerIn: parent
            spacing: Metrics.huge
            width: parent.width - 2 * Metrics.page

            StateView {
                hue: Colors.danger
                line: failure.model.phase.message
                symbol: "triangle-alert"
                title: "VORNEL a rencontré un problème"
                width: parent.width
            }
            StatusBadge {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "Indisponible"
                tone: StatusBadge.Danger
            }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: Metrics.medium

                ActionButton {
                    focus: true
                    role: ActionButton.Primary
                    symbol: "rotate-cw"
                    text: "Réessayer"
                    onClicked: failure.model.retryStart()
                }
                ActionButton {
                    symbol: "folder-open"
                    text: "Ouvrir le dossier"
                    visible: failure.model.phase.hasFolder
                    onClicked: Qt.openUrlExternally(failure.model.phase.folder)
                }
            }
        }
    }
}
