import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** How the copy of one assistant stands. Where something differs, a press shows what. */
T.Button {
    id: chip

    required property copyInspection inspection

    readonly property bool hasDetails: inspection.differences.length > 0 || inspection.reason !== ""
    readonly property color hue: {
        switch (inspection.state) {
        case Vornel.SyncState.inSync:
            return Colors.success;
        case Vornel.SyncState.failed:
            return Colors.danger;
        default:
            return Colors.warning;
        }
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Metrics.controlHeight
    enabled: hasDetails
    focusPolicy: Qt.StrongFocus
    font: Typography.control
    horizontalPadding: Metrics.medium
    hoverEnabled: true
    text: inspection.assistant

    Accessible.description: inspection.reason !== "" ? `${inspection.reason}, ${inspection.path}` : hasDetails ? "Voir les différences" : ""
    Accessible.name: inspection.assistant + ", " + inspection.stateText
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()

    Hint {
        control: chip
        text: chip.inspection.reason + "\n" + chip.inspection.path
        visible: chip.hovered && chip.inspection.reason !== ""
    }

    background: Rectangle {
        border.color: chip.hasDetails ? chip.hue : Colors.line
        border.width: Metrics.hairline
        color: chip.down || chip.hovered && chip.hasDetails ? Colors.hover : "transparent"
        radius: Metrics.controlRadius

        FocusRing {
            control: chip
        }
    }
    contentItem: Row {
        spacing: Metrics.small

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            color: chip.hue
            height: 8
            radius: 4
            width: 8
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.text
            font: chip.font
            renderType: Text.NativeRendering
            text: chip.text
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.secondary
            font: Typography.small
            renderType: Text.NativeRendering
            text: chip.inspection.stateText
        }
    }
}
