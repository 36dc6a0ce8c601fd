import QtQuick
import QtQuick.Layouts
import VORNELApp
import VORNELDesignSystem

/** The last page of the onboarding: the way into the library. */
FocusScope {
    id: page

    required property AppModel model

    Component.onCompleted: {
        if (model.importPlan === undefined && !model.isWorking)
            panel.scan();
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
        ImportPanel {
            id: panel

            Layout.fillHeight: true
            Layout.fillWidth: true
            acceptText: "Ouvrir la bibliothèque"
            focus: true
            isScanned: page.model.importPlan !== undefined
            model: page.model
        }
    }
}
