import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Says whether the import can begin, begins it, and shows how far it is. */
Item {
    id: footer

    required property AppModel model

    /** The text of the button that begins the import. */
    required property string acceptText

    required property bool canClose

    /** Whether the plan may be imported as it stands. */
    required property bool isScanned

    /** What the import would replace, where the screen above shows it. */
    required property TargetOccupants occupants

    signal closed

    readonly property var plan: isScanned ? model.importPlan : undefined
    readonly property bool isReady: plan !== undefined && plan.isReadyToCommit
    readonly property int undecided: plan?.unresolvedCollisionCount ?? 0
    property bool isCommitting: false

    function focusOpen(): void {
        begin.forceActiveFocus(Qt.TabFocusReason);
    }

    function commit(): void {
        isCommitting = true;
        model.commitImport();
    }

    implicitHeight: 48

    Connections {
        function onImported() {
            footer.closed();
        }

        function onIsWorkingChanged() {
            footer.isCommitting = footer.isCommitting && footer.model.isWorking;
        }

        target: footer.model
    }
    Row {
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small
        visible: footer.isReady && !footer.isCommitting

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.success
            height: Metrics.symbol
            name: "circle-check"
            width: Metrics.symbol
        }
        Label {
            anchors.verticalCenter: parent.verticalCenter
            text: "Prêt à commencer."
        }
    }
    Label {
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.secondary
        text: footer.undecided === 1 ? "Reste 1 doublon à trancher." : "Restent " + footer.undecided + " doublons à trancher."
        visible: footer.undecided > 0
    }
    Column {
        anchors.left: parent.left
        anchors.right: close.left
        anchors.rightMargin: Metrics.huge
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small
        visible: footer.isCommitting

        Label {
            text: "Import en cours : " + Math.round(progress.value * 100) + " %"
        }
        ProgressLine {
            id: progress

            value: footer.model.commitProgress
            width: parent.width

            Accessible.name: "Import en cours"
        }
    }
    ActionButton {
        id: close

        anchors.right: begin.left
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        enabled: !footer.model.isWorking
        text: "Fermer"
        visible: footer.canClose
        onClicked: footer.closed()
    }
    ActionButton {
        id: begin

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        enabled: footer.isScanned && footer.model.canCommitImport
        height: footer.canClose ? implicitHeight : 44
        isSymbolTrailing: true
        role: ActionButton.Primary
        symbol: "arrow-right"
        text: footer.acceptText
        onClicked: if (!occupied.isAsking) occupied.askForImport()
    }
    OccupiedQuestion {
        id: occupied

        acceptText: "Remplacer et importer"
        model: footer.model
        occupants: footer.occupants ?? occupied.own
        title: {
            if (!canAccept)
                return "L’import ne peut pas commencer";
            return count === 1 ? "Remplacer 1 dossier\u00A0?" : "Remplacer " + count + " dossiers\u00A0?";
        }
        onAccepted: footer.commit()
        onUnoccupied: footer.commit()
    }
}
