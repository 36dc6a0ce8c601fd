pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The chosen skill: its files, its instructions to edit, its properties, and how its copies stand. */
FocusScope {
    id: editor

    required property AppModel model

    readonly property OpenSkill skill: model.openSkill
    readonly property string skillID: String(model.selectedSkillID)
    readonly property bool isHistoryOpen: model.history.isOpen
    readonly property bool isVersionShown: (history.item as SkillHistory)?.isVersionShown ?? false
    property string selectedFile: "SKILL.md"
    property bool arePropertiesOpen: false

    /** How much of the width is taken by what is open beside the text. */
    readonly property real sideWidth: {
        if (isHistoryOpen)
            return (history.item as SkillHistory)?.panelWidth ?? 0;
        return arePropertiesOpen ? panel.width : 0;
    }
    readonly property bool isSideOpen: isHistoryOpen || arePropertiesOpen

    /** What had the keyboard before the properties. */
    property Item formerFocus

    /** Whether the skill is on its way to the trash: nothing may be typed that would go with it. */
    property bool isGoing: false

    /** Gives the keyboard to what is shown: the versions, the text or another file. */
    function takeKeyboard(): void {
        if (isVersionShown)
            (history.item as SkillHistory).takeKeyboard();
        else
            (selectedFile === "SKILL.md" ? instructions : file).forceActiveFocus(Qt.OtherFocusReason);
    }
    /** Comes back from a version that hides the text, which is to be changed or searched. */
    function showText(): void {
        (history.item as SkillHistory)?.leaveVersion();
        takeKeyboard();
    }
    function find(): void {
        showText();
        if (selectedFile === "SKILL.md")
            instructions.find();
        else
            file.find();
    }
    function toggleHistory(): void {
        if (isHistoryOpen)
            model.history.close();
        else
            model.history.open();
    }
    function toggleProperties(): void {
        if (arePropertiesOpen)
            closeProperties();
        else
            openProperties();
    }
    function openProperties(): void {
        model.history.close();
        formerFocus = Window.activeFocusItem;
        arePropertiesOpen = true;
        (panel.item as PropertiesPanel).takeKeyboard();
    }
    function closeProperties(): void {
        const hadKeyboard = panel.activeFocus;
        arePropertiesOpen = false;
        if (hadKeyboard)
            takeKeyboardBack(formerFocus);
    }
    /** Brings the keyboard back from what is closed to where it was. */
    function takeKeyboardBack(former: Item): void {
        if (activeFocus && former?.visible)
            former.forceActiveFocus(Qt.OtherFocusReason);
        else if (activeFocus)
            takeKeyboard();
    }

    Keys.onEscapePressed: event => {
        event.accepted = isSideOpen;
        model.history.close();
        closeProperties();
    }
    onIsHistoryOpenChanged: if (isHistoryOpen) arePropertiesOpen = false
    onSkillIDChanged: selectedFile = "SKILL.md"

    PropertyForm {
        id: propertyForm

        model: editor.model
    }
    DepartureGuard {
        departure: editor.model.departure
        isActive: propertyForm.isModified
    }

    Connections {
        function onFileRefused(path) {
            editor.selectedFile = path;
            file.refresh();
        }

        target: editor.skill
    }
    Connections {
        function onMoved(from, to) {
            if (editor.selectedFile === from || editor.selectedFile.startsWith(from + "/"))
                editor.selectedFile = to + editor.selectedFile.substring(from.length);
        }

        function onRemoved(path) {
            if (editor.selectedFile === path || editor.selectedFile.startsWith(path + "/"))
                editor.selectedFile = "SKILL.md";
        }

        target: editor.skill.files
    }
    Connections {
        function onIsWorkingChanged() {
            editor.isGoing = editor.isGoing && editor.model.isWorking;
        }

        target: editor.model
    }
    Shortcut {
        sequence: "Ctrl+S"
        onActivated: {
            if (panel.activeFocus)
                return (panel.item as PropertiesPanel).save();
            if (editor.isVersionShown)
                editor.showText();
            editor.skill.save();
        }
    }
    Shortcut {
        sequences: ["Alt+Return", "Alt+Enter"]
        onActivated: editor.toggleProperties()
    }
    Shortcut {
        sequence: "Ctrl+H"
        onActivated: editor.toggleHistory()
    }
    EditorTopBar {
        id: bar

        anchors.left: parent.left
        anchors.margins: Metrics.huge
        anchors.right: parent.right
        anchors.top: parent.top
        arePropertiesModified: propertyForm.isModified
        model: editor.model
        onDuplicateAsked: questions.askForDuplicate()
        onHistoryAsked: editor.toggleHistory()
        onPropertiesAsked: editor.toggleProperties()
        onSaveAsked: {
            editor.showText(); // as the button goes grey
            editor.skill.save();
        }
        onTrashAsked: questions.askToTrash()
    }
    EditorFacts {
        id: facts

        anchors.left: parent.left
        anchors.leftMargin: Metrics.huge
        anchors.right: parent.right
        anchors.rightMargin: Metrics.huge
        anchors.top: bar.bottom
        anchors.topMargin: Metrics.medium
        model: editor.model
    }
    EditorNotices {
        id: notices

        anchors.left: facts.left
        anchors.right: facts.right
        anchors.top: facts.bottom
        anchors.topMargin: height > 0 ? Metrics.medium : 0
        canAct: !editor.model.isWorking
        skill: editor.skill
        onComparisonAsked: questions.compareTexts()
        onDecided: editor.showText()
        onHandEditsAdopted: editor.model.adoption.adoptHandEdits(editor.model.selectedSkillID)
        onReplacementAsked: questions.askToReplace()
    }
    FileTree {
        id: tree

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.huge
        anchors.left: facts.left
        anchors.top: notices.bottom
        anchors.topMargin: Metrics.medium
        model: editor.model
        selectedFile: editor.selectedFile
        visible: !editor.isSideOpen || (editor.width > Metrics.roomForTexts && !(editor.isHistoryOpen && editor.isVersionShown))
        width: visible ? Math.min(240, parent.width / 4) : 0
        onFileChosen: path => editor.selectedFile = path
        onFileOpened: path => {
            editor.selectedFile = path;
            editor.takeKeyboard();
        }
    }
    Surface {
        anchors.bottom: tree.bottom
        anchors.left: tree.right
        anchors.leftMargin: tree.visible ? Metrics.medium : 0
        anchors.right: facts.right
        anchors.rightMargin: editor.isSideOpen ? editor.sideWidth + Metrics.medium : 0
        anchors.top: tree.top
        visible: !editor.isVersionShown || !editor.isHistoryOpen

        InstructionsPane {
            id: instructions

            anchors.bottom: footer.top
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            focus: true
            isLocked: editor.isGoing
            model: editor.model
            visible: editor.selectedFile === "SKILL.md"
            onFileAsked: path => editor.selectedFile = path
        }
        AssociatedFilePane {
            id: file

            anchors.fill: instructions
            isLocked: editor.isGoing
            model: editor.model
            path: visible ? editor.selectedFile : ""
            visible: editor.selectedFile !== "" && editor.selectedFile !== "SKILL.md"
        }
        StateView {
            anchors.centerIn: parent
            symbol: "file"
            title: "Sélectionnez un fichier."
            visible: editor.selectedFile === ""
            width: parent.width - 2 * Metrics.huge
        }
        EditorFooter {
            id: footer

            anchors.bottom: parent.bottom
            anchors.left: parent.left
            anchors.right: parent.right
            file: file
            model: editor.model
            path: editor.selectedFile
        }
    }
    DeferredItem {
        id: history

        anchors.bottom: tree.bottom
        anchors.left: facts.left
        anchors.right: facts.right
        anchors.top: tree.top
        file: "SkillHistory.qml"
        isWanted: editor.isHistoryOpen
        properties: ({ model: editor.model })
        onVisibleChanged: if (!visible) editor.takeKeyboardBack((item as SkillHistory)?.formerFocus ?? null)
    }
    DeferredItem {
        id: panel

        anchors.bottom: tree.bottom
        anchors.right: facts.right
        anchors.top: tree.top
        file: "PropertiesPanel.qml"
        isWanted: editor.arePropertiesOpen
        properties: ({ form: propertyForm, model: editor.model })
        width: Math.max(304, Math.min(340, facts.width / 3))
    }
    Connections {
        function onClosingAsked() {
            editor.closeProperties();
        }

        target: panel.item as PropertiesPanel
    }
    EditorQuestions {
        id: questions

        model: editor.model
        properties: propertyForm
        onEnded: {
            if (editor.Window.activeFocusItem === editor.Window.contentItem) // as a notice has gone that had the keyboard
                editor.takeKeyboard();
        }
        onPropertiesAsked: if (!editor.arePropertiesOpen) editor.openProperties()
        onTextAsked: editor.showText()
        onTrashed: {
            editor.isGoing = true;
            editor.model.moveSelectedSkillToTrash();
        }
    }
}
