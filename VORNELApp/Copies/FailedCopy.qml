import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Why the copy of one assistant has failed, and what can be done about it. */
Column {
    id: copy

    required property copyInspection inspection
    required property bool canAct

    signal settingAsideAsked

    spacing: Metrics.small

    Label {
        color: Colors.danger
        text: copy.inspection.assistant + "\u00A0: " + copy.inspection.reason
        width: parent.width
        wrapMode: Text.Wrap
    }
    Label {
        color: Colors.secondary
        elide: Text.ElideMiddle
        font: Typography.code
        text: copy.inspection.path
        width: parent.width
    }
    Label {
        color: Colors.secondary
        lineHeight: 1.35
        text: "«\u00A0Mettre de côté\u00A0» garde cette copie telle quelle dans .vornel/recovery et en installe une nouvelle."
        visible: copy.inspection.isUnreadable
        width: parent.width
        wrapMode: Text.Wrap
    }
    Row {
        spacing: Metrics.medium

        ActionButton {
            symbol: "folder-open"
            text: "Ouvrir le dossier"

            Accessible.description: copy.inspection.path
            onClicked: Qt.openUrlExternally(copy.inspection.folderURL)
        }
        ActionButton {
            enabled: copy.canAct
            symbol: "archive"
            text: "Mettre de côté"
            visible: copy.inspection.isUnreadable

            Accessible.description: copy.inspection.assistant
            onClicked: copy.settingAsideAsked()
        }
    }
}
