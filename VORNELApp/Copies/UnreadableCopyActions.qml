import QtQuick
import VORNELApp
import VORNELDesignSystem

/** At the end of a row: what can be done with a copy that can't be read. */
Row {
    id: actions

    required property copyInspection inspection
    required property string name
    required property bool canAct
    required property bool isCurrent
    required property bool isCompact

    signal settingAsideAsked

    anchors.verticalCenter: parent?.verticalCenter
    spacing: Metrics.small

    ActionButton {
        focusPolicy: actions.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
        isCompact: true
        symbol: "folder-open"
        text: "Ouvrir le dossier"

        Accessible.description: actions.inspection.path
        onClicked: Qt.openUrlExternally(actions.inspection.folderURL)
    }
    ActionButton {
        enabled: actions.canAct
        focusPolicy: actions.isCurrent || activeFocus ? Qt.StrongFocus : Qt.ClickFocus
        isCompact: actions.isCompact
        symbol: "archive"
        text: "Mettre de côté"

        Accessible.description: actions.name + ", " + actions.inspection.assistant
        onClicked: actions.settingAsideAsked()
    }
}
