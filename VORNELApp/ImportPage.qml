import QtQuick
import QtQuick.Layouts
import VORNELApp
import VORNELDesignSystem

/** What the assistants hold, the decisions it needs, and the way into the library. */
FocusScope {
    id: page

    required property AppModel model

    readonly property var plan: model.importPlan

    Component.onCompleted: {
        if (plan === undefined)
            model.beginImportScan();
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.leftMargin: Metrics.page
        anchors.rightMargin: Metrics.page
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
            Layout.fillHeight: true
            Layout.fillWidth: true
            model: page.model
            screen: page.plan === undefined ? "ImportWaiting.qml" : "ImportReview.qml"
        }
        ImportFooter {
            Layout.fillWidth: true
            model: page.model
        }
    }
}
