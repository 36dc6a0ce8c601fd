import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** One destination. A count of zero isn't shown. */
T.RadioButton {
    id: row

    required property AppModel model
    required property int destination
    required property string symbol
    property int count: 0

    readonly property bool isCurrent: model.selectedDestination === destination
    readonly property color foreground: isCurrent ? Colors.accent : Colors.secondary

    anchors.left: parent?.left
    anchors.right: parent?.right
    implicitHeight: 40
    autoExclusive: false
    checked: isCurrent
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: if (enabled) clicked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()
    onClicked: {
        checked = Qt.binding(() => isCurrent); // a click checks by itself
        model.departure.leaveFor(destination);
    }

    background: Rectangle {
        color: row.isCurrent ? Colors.tint(Colors.accent) : row.hovered ? Colors.hover : "transparent"
        radius: Metrics.controlRadius

        FocusRing {
            control: row
        }
    }
    contentItem: Row {
        leftPadding: Metrics.medium
        spacing: Metrics.medium

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: row.foreground
            height: Metrics.symbol
            name: row.symbol
            width: Metrics.symbol
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            color: row.isCurrent ? Colors.text : Colors.secondary
            font: Typography.control
            renderType: Text.NativeRendering
            text: row.text
        }
    }

    Text {
        anchors.right: parent.right
        anchors.rightMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.warning
        font: Typography.small
        renderType: Text.NativeRendering
        text: row.count
        visible: row.count > 0
    }
}
