pragma ComponentBehavior: Bound

import QtQuick
import VORNELDesignSystem

/**
 * The way back and forth, and a dot for each page. `step` counts from 0. A button that can no longer be used hands
 * the keyboard to the other, if that can.
 */
Item {
    id: footer

    required property int step
    required property bool canRetreat
    required property bool canAdvance

    signal retreated
    signal advanced

    /** The button that had the keyboard can't be used, nor can the other. */
    signal abandoned

    function handOver(other: ActionButton): void {
        if (other.enabled)
            other.forceActiveFocus(Qt.TabFocusReason);
        else
            abandoned();
    }

    implicitHeight: Metrics.controlHeight

    Row {
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small

        Repeater {
            model: 5

            Rectangle {
                required property int index

                readonly property bool isCurrent: index === footer.step

                color: isCurrent ? Colors.accent : Colors.line
                height: 6
                radius: 3
                width: isCurrent ? 24 : 6

                Behavior on width {
                    NumberAnimation {
                        duration: Motion.normal
                        easing.type: Motion.easing
                    }
                }
            }
        }
    }
    Row {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.small

        ActionButton {
            id: retreat

            enabled: footer.canRetreat
            isCompact: true
            symbol: "arrow-left"
            text: "Étape précédente"
            onClicked: footer.retreated()
            onEnabledChanged: if (!enabled && focus) footer.handOver(advance)
        }
        ActionButton {
            id: advance

            enabled: footer.canAdvance
            isCompact: true
            symbol: "arrow-right"
            text: "Étape suivante"
            onClicked: footer.advanced()
            onEnabledChanged: if (!enabled && focus) footer.handOver(retreat)
        }
    }
}
