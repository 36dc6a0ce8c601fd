import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Takes what is dropped from a file manager, and says meanwhile what would happen. */
DropArea {
    id: area

    required property AppModel model

    /** Why what is over the area can't be added; empty where it can be tried. */
    property string refusal
    property int count

    enabled: !model.isWorking && !model.addition.isOpen
    keys: ["text/uri-list"]
    onDropped: drop => {
        drop.accept(Qt.CopyAction); // or the other program would take away what it has moved
        area.model.addition.begin(drop.urls);
    }
    onEntered: drag => {
        refusal = model.addition.refusal(drag.urls);
        count = drag.urls.length;
        drag.accept(Qt.CopyAction);
    }

    Rectangle {
        anchors.fill: parent
        anchors.margins: Metrics.small
        border.color: state.hue
        border.width: Metrics.focusWidth
        color: Qt.alpha(Colors.canvas, 0.96)
        radius: Metrics.cardRadius
        visible: area.containsDrag

        StateView {
            id: state

            anchors.centerIn: parent
            hue: area.refusal === "" ? Colors.accent : Colors.danger
            line: area.refusal === "" ? "VORNEL montre ce qui serait ajouté. Rien n’est écrit avant votre confirmation." : area.refusal
            symbol: area.refusal === "" ? "folder-plus" : "triangle-alert"
            title: {
                if (area.refusal !== "")
                    return "Ceci ne peut pas être ajouté";
                return area.count === 1 ? "Déposer pour ajouter" : "Déposer pour ajouter ces " + area.count + " éléments";
            }
            width: parent.width - 2 * Metrics.huge
        }
    }
}
