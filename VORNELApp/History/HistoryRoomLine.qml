import QtQuick
import QtQuick.Layouts
import VORNELApp
import VORNELDesignSystem

/** How much the histories take, and the way to free room. It has its place before that is known. */
ListFooter {
    id: line

    required property AppModel model

    readonly property bool isKnown: room.extentText !== ""

    HistoryRoom {
        id: room

        model: line.model
    }
    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Metrics.huge
        anchors.rightMargin: Metrics.huge
        spacing: Metrics.medium

        Label {
            Layout.fillWidth: true
            color: room.problem === "" ? Colors.secondary : Colors.danger
            text: {
                if (room.problem !== "")
                    return "La taille de l’historique n’a pas pu être mesurée. " + room.problem;
                return line.isKnown ? "Historique\u00A0: " + room.extentText : "Historique";
            }
        }
        ActionButton {
            enabled: line.isKnown && !line.model.isWorking
            symbol: "history"
            text: "Libérer de la place…"
            onClicked: {
                sheet.make();
                (sheet.item as HistoryRoomSheet).open();
            }
        }
    }
    DeferredItem {
        id: sheet

        file: "HistoryRoomSheet.qml"
        properties: ({ model: line.model, room: room })
    }
}
