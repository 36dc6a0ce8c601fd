import QtQuick
import QtQuick.Layouts
import VORNELApp
import VORNELDesignSystem

/** What the assistants hold, the decisions it needs, and the way into the library. */
FocusScope {
    id: page

    required property AppModel model

    readonly property var plan: model.importPlan

    /** Gives the keyboard to what comes next, unless a control has it. */
    function settleFocus(): void {
        const item = Window.activeFocusItem;
        if (!activeFocus || (item.activeFocusOnTab && item.enabled && item.visible))
            return;
        const review = content.item as ImportReview;
        if (!review?.focusFirstDecision())
            footer.focusOpen();
    }

    Component.onCompleted: {
        if (plan === undefined && !model.isWorking)
            model.beginImportScan();
    }

    Timer {
        interval: 0 // after the screens have followed the model
        running: !page.model.isWorking
        onTriggered: page.settleFocus()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.huge

        Column {
            Layout.fillWidth: true
            spacing: Metrics.small

            Label {
                color: Colors.accent
                font: Typography.label
                text: "PRÉPARATION"
            }
            Label {
                font: Typography.title
                text: "VORNEL rassemble vos compétences existantes."
                width: parent.width
                wrapMode: Text.Wrap
            }
        }
        ScreenLoader {
            id: content

            Layout.fillHeight: true
            Layout.fillWidth: true
            model: page.model
            screen: page.plan === undefined ? "ImportWaiting.qml" : "ImportReview.qml"
        }
        ImportFooter {
            id: footer

            Layout.fillWidth: true
            model: page.model
            occupants: (content.item as ImportReview)?.occupants ?? null
        }
    }
}
