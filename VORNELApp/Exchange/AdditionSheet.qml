import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Shows what adding skills would do, takes the decisions, and adds them. */
Sheet {
    id: sheet

    required property AppModel model

    readonly property Addition addition: model.addition
    readonly property real panelHeight: Math.max(200, Math.min(520, parent.height - 234 - problem.height))

    /** Whether what stands in the places of copies is looked at for the last time before all is written. */
    property bool isAdding: false

    /** Gives the keyboard to what comes next, unless a control has it. */
    function settleFocus(): void {
        const item = parent.Window.activeFocusItem;
        if (!isUsed || (item.activeFocusOnTab && item.enabled && item.visible))
            return;
        if (waiting.visible)
            waiting.forceActiveFocus(Qt.TabFocusReason);
        else if (!review.focusFirstDecision())
            footer.focusAccept();
    }

    firstFocus: waiting
    implicitWidth: Math.min(900, parent.width - 2 * Metrics.page)
    isGuarded: model.isWorking
    title: "Ajouter des compétences"
    onAboutToShow: occupants.look([])
    onClosed: addition.leave()
    onOpened: settleFocus() // what was found before then

    Connections {
        function onAdded() {
            sheet.close();
        }

        function onChanged() {
            settlement.start();
        }

        function onReviewed() {
            occupants.look(sheet.addition.newSlugs);
        }

        target: sheet.addition
    }
    TargetOccupants {
        id: occupants

        model: sheet.model
        onChanged: sheet.isAdding = false // what the user has seen is no longer true
        onLooked: {
            if (sheet.isAdding)
                sheet.addition.add();
            sheet.isAdding = false;
        }
    }
    Timer {
        id: settlement

        interval: 0 // after the screens have followed the addition
        onTriggered: sheet.settleFocus()
    }
    FocusScope {
        height: sheet.panelHeight
        width: parent.width

        AdditionWaiting {
            id: waiting

            addition: sheet.addition
            anchors.fill: parent
            visible: !review.visible
        }
        AdditionReview {
            id: review

            anchors.fill: parent
            model: sheet.model
            occupants: occupants
            visible: sheet.addition.isReviewed
        }
    }
    AdditionFooter {
        id: footer

        model: sheet.model
        occupants: occupants
        width: parent.width
        onAccepted: {
            sheet.isAdding = true;
            occupants.look(sheet.addition.newSlugs);
        }
        onClosed: sheet.close()
    }
    ErrorPanel {
        id: problem

        text: sheet.addition.isReviewed ? sheet.addition.problem : "" // which is shown in the middle before
        width: parent.width
        onDismissed: {
            sheet.addition.forgetProblem();
            footer.focusAccept();
        }
    }
}
