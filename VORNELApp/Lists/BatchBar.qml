import QtQuick
import QtQuick.Layouts
import VORNELApp
import VORNELDesignSystem

/** How far a change of several skills is. It can be stopped. */
ListFooter {
    id: bar

    required property SkillBatch batch

    visible: batch.isRunning && batch.count > 1

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Metrics.huge
        anchors.rightMargin: Metrics.huge
        spacing: Metrics.large

        Label {
            Layout.minimumWidth: 200
            font: Typography.control
            text: bar.batch.progressText
        }
        ProgressLine {
            Layout.fillWidth: true
            to: bar.batch.count
            value: bar.batch.doneCount

            Accessible.name: bar.batch.progressText
        }
        ActionButton {
            enabled: !bar.batch.isStopping
            symbol: "x"
            text: "Arrêter"
            onClicked: bar.batch.stop()
        }
    }
}
