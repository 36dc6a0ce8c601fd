pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/**
 * The versions that are kept of a skill, by day. Up and Down walk through them and show each; Enter shows the one that
 * has the keyboard.
 */
Surface {
    id: panel

    required property VersionList versions

    signal closingAsked

    /** Gives the keyboard to the version that is shown, or to the newest one. */
    function takeKeyboard(): void {
        list.currentIndex = Math.max(0, versions.rowOf(versions.chosen));
        (list.currentItem ?? list).forceActiveFocus(Qt.TabFocusReason);
    }

    Accessible.name: "Historique"
    Accessible.role: Accessible.Pane
    border.color: list.activeFocus ? Colors.accent : Colors.line

    Connections {
        function onModelReset() {
            list.currentIndex = Math.max(0, panel.versions.rowOf(panel.versions.chosen));
        }

        target: panel.versions.rows
    }
    PaneHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        text: "HISTORIQUE"
    }
    ActionButton {
        anchors.right: header.right
        anchors.rightMargin: Metrics.tiny
        anchors.verticalCenter: header.verticalCenter
        isCompact: true
        symbol: "x"
        text: "Fermer l’historique"
        onClicked: panel.closingAsked()
    }
    VersionDays {
        id: list

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: Metrics.small
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.topMargin: 0
        model: panel.versions.rows
        name: "Versions"
        onCurrentIndexChanged: if (activeFocus) panel.versions.chosen = panel.versions.nameAt(currentIndex)

        delegate: VersionRow {
            isChosen: entry === panel.versions.chosen
            width: list.width - (list.rail.visible ? list.rail.width : 0)
            onClicked: {
                list.currentIndex = index;
                panel.versions.chosen = entry;
            }
        }
    }
    Label {
        anchors.centerIn: list
        color: Colors.secondary
        horizontalAlignment: Text.AlignHCenter
        text: panel.versions.explanation
        visible: list.count === 0
        width: list.width - 2 * Metrics.medium
        wrapMode: Text.Wrap
    }
}
