import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A file of the selected skill beside its instructions, to look at. */
FocusScope {
    id: pane

    required property AppModel model
    required property string path

    readonly property SkillFileContent content: content

    function find(): void {
        if (content.kind === SkillFileContent.Text)
            findBar.open();
    }

    Keys.onEscapePressed: event => {
        event.accepted = findBar.visible;
        if (findBar.visible)
            findBar.close();
    }

    SkillFileContent {
        id: content

        model: pane.model
        path: pane.path
    }
    PaneHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        text: pane.path
    }
    Label {
        id: line

        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        anchors.top: header.bottom
        anchors.topMargin: Metrics.medium
        color: Colors.secondary
        text: "Fichier associé à cette compétence."
    }
    FindBar {
        id: findBar

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: line.bottom
        anchors.topMargin: Metrics.small
        pane: text
    }
    CodePane {
        id: text

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: findBar.visible ? findBar.bottom : line.bottom
        focus: visible
        visible: content.kind === SkillFileContent.Text

        area.Accessible.name: "Contenu de " + pane.path
        area.readOnly: true
        area.text: content.text
    }
    PictureView {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: Metrics.large
        anchors.right: parent.right
        anchors.top: line.bottom
        content: content
        visible: content.kind === SkillFileContent.Picture

        Accessible.name: "Image " + pane.path
        Accessible.role: Accessible.Graphic
    }
    StateView {
        anchors.centerIn: parent
        symbol: "file"
        title: content.explanation
        visible: content.kind === SkillFileContent.Unshown
        width: parent.width - 2 * Metrics.huge
    }
}
