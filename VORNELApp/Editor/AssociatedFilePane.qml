pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A file of the selected skill beside its instructions: a text to edit, a picture, or what else it is. */
FocusScope {
    id: pane

    required property AppModel model
    required property string path
    property bool isLocked: false

    readonly property SkillFileContent content: content
    readonly property EditedFile edited: edited
    readonly property bool isMarkdown: /\.(md|markdown)$/i.test(path)

    function find(): void {
        if (edited.isShown)
            findBar.open();
    }
    /** Reads the file again, which others have changed. */
    function refresh(): void {
        content.refresh();
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
    EditedFile {
        id: edited

        content: content
        document: text.area.textDocument
        drafts: pane.model.openSkill.draft.files
        onBegun: text.area.cursorPosition = 0
    }
    Instantiator {
        active: pane.isMarkdown

        MarkdownHighlighter {
            codeColor: Colors.code
            document: text.area.textDocument
            headingColor: Colors.accent
            linkColor: Colors.link
            markColor: Colors.muted
        }
    }
    Instantiator {
        active: !pane.isMarkdown

        CodeHighlighter {
            commentColor: Colors.muted
            constantColor: Colors.literal
            document: text.area.textDocument
            keywordColor: Colors.accent
            nameColor: Colors.link
            path: pane.path
            stringColor: Colors.code
        }
    }
    PaneHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        text: pane.path
    }
    StaleFileNotice {
        id: notice

        anchors.left: parent.left
        anchors.margins: Metrics.small
        anchors.right: parent.right
        anchors.top: header.bottom
        file: edited
        onDecided: text.area.forceActiveFocus(Qt.OtherFocusReason)
    }
    FindBar {
        id: findBar

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: notice.visible ? notice.bottom : header.bottom
        anchors.topMargin: notice.visible ? Metrics.small : 0
        pane: text
    }
    CodePane {
        id: text

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: findBar.visible ? findBar.bottom : findBar.top
        focus: visible
        visible: edited.isShown

        area.Accessible.name: "Contenu de " + pane.path
        area.readOnly: pane.isLocked || edited.isReadOnly
    }
    PictureView {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: Metrics.large
        anchors.right: parent.right
        anchors.top: header.bottom
        content: content
        visible: content.kind === SkillFileContent.Picture

        Accessible.name: "Image " + pane.path
        Accessible.role: Accessible.Graphic
    }
    StateView {
        anchors.centerIn: parent
        symbol: "file"
        title: content.explanation
        visible: content.kind === SkillFileContent.Unshown && !edited.isShown
        width: parent.width - 2 * Metrics.huge
    }
}
