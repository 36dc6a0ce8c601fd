import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The text of the selected skill's "SKILL.md", edited in place. */
FocusScope {
    id: pane

    required property OpenSkill skill
    property bool isLocked: false

    function find(): void {
        findBar.open();
    }

    Component.onCompleted: {
        skill.edit(text.area.textDocument);
        text.area.cursorPosition = 0;
    }
    Keys.onEscapePressed: event => {
        event.accepted = findBar.visible;
        if (findBar.visible)
            findBar.close();
    }

    Connections {
        function onBegun() {
            text.area.cursorPosition = 0;
        }

        target: pane.skill.draft
    }
    MarkdownHighlighter {
        codeColor: Colors.code
        document: text.area.textDocument
        headingColor: Colors.accent
        linkColor: Colors.link
        markColor: Colors.muted
    }
    PaneHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        text: "INSTRUCTIONS"

        Tag {
            text: "MARKDOWN"
        }
    }
    FindBar {
        id: findBar

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        pane: text
    }
    CodePane {
        id: text

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: findBar.visible ? findBar.bottom : header.bottom
        focus: true

        area.Accessible.name: "Instructions de la compétence"
        area.readOnly: pane.isLocked
    }
}
