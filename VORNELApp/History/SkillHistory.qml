import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The history of the skill that is edited: the versions at the right and, once one is chosen, what it holds beside them. */
FocusScope {
    id: history

    required property AppModel model

    readonly property bool isVersionShown: view.visible
    readonly property alias panelWidth: panel.width

    /** What had the keyboard before; null where that is unknown. */
    property Item formerFocus

    function takeKeyboard(): void {
        panel.takeKeyboard();
    }
    function leaveVersion(): void {
        versions.chosen = "";
    }
    function begin(): void {
        formerFocus = Window.activeFocusItem;
        takeKeyboard();
    }

    Component.onCompleted: if (visible) begin()
    onVisibleChanged: if (visible) begin()

    VersionList {
        id: versions

        model: history.model
        skillID: history.model.history.skillID
    }
    HistoryPanel {
        id: panel

        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.top: parent.top
        versions: versions
        width: Math.min(300, parent.width / 3)
        onClosingAsked: history.model.history.close()
    }
    VersionView {
        id: view

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: panel.left
        anchors.rightMargin: Metrics.medium
        anchors.top: parent.top
        model: history.model
        versions: versions
        visible: versions.chosen !== ""
    }
}
