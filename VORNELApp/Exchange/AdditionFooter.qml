import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Says what the addition would do, and begins it. */
Item {
    id: footer

    required property AppModel model

    /** What stands in the places of the new copies. */
    required property TargetOccupants occupants

    /** The user wants what the sheet shows. */
    signal accepted
    signal closed

    readonly property Addition addition: model.addition

    function focusAccept(): void {
        (accept.enabled ? accept : cancel).forceActiveFocus(Qt.TabFocusReason);
    }

    implicitHeight: 48

    BusyGlyph {
        id: busy

        anchors.verticalCenter: parent.verticalCenter
        visible: footer.model.isWorking
    }
    Label {
        anchors.left: busy.visible ? busy.right : parent.left
        anchors.leftMargin: busy.visible ? Metrics.small : 0
        anchors.right: cancel.left
        anchors.rightMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        color: footer.addition.isReady ? Colors.text : Colors.secondary
        text: footer.model.isWorking ? "Ajout en cours…" : footer.addition.effect
        visible: footer.addition.isReviewed
        wrapMode: Text.Wrap
    }
    ActionButton {
        id: cancel

        anchors.right: accept.left
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        enabled: !footer.model.isWorking
        text: "Annuler"
        onClicked: footer.closed()
    }
    ActionButton {
        id: accept

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        enabled: footer.addition.isReady && footer.occupants.canBeReplaced && !footer.model.isWorking
        role: ActionButton.Primary
        symbol: "plus"
        text: footer.occupants.count > 0 ? "Remplacer et ajouter" : "Ajouter"
        onClicked: footer.accepted()
    }
}
