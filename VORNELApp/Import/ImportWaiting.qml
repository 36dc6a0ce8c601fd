import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Shown until there is something to review: the scan runs, or it has failed. */
FocusScope {
    id: waiting

    required property AppModel model

    readonly property bool isScanning: model.isWorking

    BusyGlyph {
        anchors.bottom: line.top
        anchors.bottomMargin: Metrics.huge
        anchors.horizontalCenter: parent.horizontalCenter
        height: 40
        visible: waiting.isScanning
        width: 40
    }
    Label {
        id: line

        anchors.centerIn: parent
        color: Colors.secondary
        text: waiting.isScanning ? "Lecture des dossiers de vos assistants…"
                                 : "Les dossiers de vos assistants n’ont pas pu être lus."
    }
    ActionButton {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.top: line.bottom
        anchors.topMargin: Metrics.huge
        focus: true
        symbol: "rotate-cw"
        text: "Relancer l’analyse"
        visible: !waiting.isScanning
        onClicked: waiting.model.beginImportScan()
    }
}
