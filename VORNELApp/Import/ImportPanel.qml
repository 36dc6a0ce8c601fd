import QtQuick
import QtQuick.Layouts
import VORNELApp
import VORNELDesignSystem

/** What the assistants hold, the decisions it needs, and the import itself. */
FocusScope {
    id: panel

    required property AppModel model

    /** The text of the button that begins the import. */
    required property string acceptText

    /** Whether there is something to go back to without an import. */
    property bool canClose: false

    /** Whether the model's plan comes from a scan that was begun here, and not from an earlier one. */
    property bool isScanned: false

    /** The import is done, or not wanted. */
    signal closed

    function scan(): void {
        isScanned = false;
        content.focus = true; // else a button of the sheet keeps the keyboard
        model.beginImportScan();
    }

    /** Gives the keyboard to what comes next, unless a control has it. */
    function settleFocus(): void {
        const item = Window.activeFocusItem;
        if (!activeFocus || (item.activeFocusOnTab && item.enabled && item.visible))
            return;
        const review = content.item as ImportReview;
        if (!review?.focusFirstDecision())
            footer.focusOpen();
    }

    Connections {
        function onImportPlanChanged() {
            panel.isScanned = true;
        }

        target: panel.model
    }
    Timer {
        interval: 0 // after the screens have followed the model
        running: !panel.model.isWorking
        onTriggered: panel.settleFocus()
    }
    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.huge

        ScreenLoader {
            id: content

            Layout.fillHeight: true
            Layout.fillWidth: true
            model: panel.model
            screen: panel.isScanned ? "ImportReview.qml" : "ImportWaiting.qml"
        }
        ImportFooter {
            id: footer

            Layout.fillWidth: true
            acceptText: panel.acceptText
            canClose: panel.canClose
            isScanned: panel.isScanned
            model: panel.model
            occupants: (content.item as ImportReview)?.occupants ?? null
            onClosed: panel.closed()
        }
    }
}
