import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The text of the selected skill's "SKILL.md", edited in place. */
FocusScope {
    id: pane

    required property AppModel model
    property bool isLocked: false

    readonly property OpenSkill skill: model.openSkill

    /** A problem is in this file. */
    signal fileAsked(path: string)

    function find(): void {
        findBar.open();
    }
    function goTo(position: int): void {
        text.area.cursorPosition = position;
        text.area.forceActiveFocus(Qt.OtherFocusReason);
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

        anchors.bottom: problems.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: findBar.visible ? findBar.bottom : header.bottom
        focus: true

        area.Accessible.name: "Instructions de la compétence"
        area.readOnly: pane.isLocked
    }
    CheckPanel {
        id: problems

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        model: pane.model
        pane: text
        onEscaped: text.area.forceActiveFocus(Qt.OtherFocusReason)
        onPlaceAsked: (path, position) => {
            pane.fileAsked(path);
            if (path === "SKILL.md")
                pane.goTo(position);
        }
    }
}
