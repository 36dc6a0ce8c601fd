import QtQuick
import VORNELDesignSystem

/** One thing that can be done with copies, and beside it what that means. */
Row {
    id: choice

    required property string text
    required property string explanation
    property alias symbol: button.symbol
    property bool canAct: true
    property bool isPrimary: false
    property real buttonWidth: 280

    signal chosen

    spacing: Metrics.large

    ActionButton {
        id: button

        enabled: choice.canAct
        role: choice.isPrimary ? ActionButton.Primary : ActionButton.Quiet
        text: choice.text
        width: choice.buttonWidth
        onClicked: choice.chosen()
    }
    Label {
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.secondary
        font: Typography.small
        lineHeight: 1.2
        maximumLineCount: 3
        text: choice.explanation
        width: choice.width - x
        wrapMode: Text.Wrap
    }
}
