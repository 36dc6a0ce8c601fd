pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The chosen skill: its files, its instructions to edit, its category, and how its copies stand. */
FocusScope {
    id: editor

    required property AppModel model

    readonly property var detail: model.selectedSkill
    readonly property string name: detail?.manifest.displayName ?? ""
    readonly property string skillID: String(model.selectedSkillID)
    readonly property SkillDraft draft: instructions.draft
    property string selectedFile: "SKILL.md"

    /** Whether the skill is on its way to the trash: nothing may be typed that would go with it. */
    property bool isGoing: false

    function find(): void {
        if (instructions.visible)
            instructions.find();
        else
            file.find();
    }
    function synchronize(): void {
        differences.synchronizeCopies(() => model.synchronizeSelectedSkill());
    }
    function compareTexts(): void {
        comparison.make();
        (comparison.item as TextComparisonSheet).compare();
    }
    function save(): void {
        if (draft.isSaved)
            model.departure.resume();
        else if (model.isWorking)
            model.departure.stay();
        else
            draft.check(() => differences.saveOverCopies(draft.text(), () => draft.save()));
    }

    onSkillIDChanged: selectedFile = "SKILL.md"

    SkillCopies {
        id: copies

        model: editor.model
        skillID: editor.model.selectedSkillID
    }
    Connections {
        function onOverruled() {
            editor.save();
        }
        function onSaveFailed() {
            editor.model.departure.stay();
            if (editor.draft.standing !== SkillDraft.Current)
                refusal.open();
        }
        function onSaved() {
            if (!editor.draft.isModified)
                unsaved.go();
            else if (!unsaved.visible)
                editor.model.departure.stay(); // something was typed meanwhile
        }

        target: editor.draft
    }
    Connections {
        function onIsPendingChanged() {
            if (editor.model.departure.isPending && editor.draft.isModified)
                unsaved.open();
        }

        target: editor.model.departure
    }
    Connections {
        function onIsWorkingChanged() {
            editor.isGoing = editor.isGoing && editor.model.isWorking;
        }

        target: editor.model
    }
    Shortcut {
        sequence: "Ctrl+S"
        onActivated: editor.save()
    }
    EditorTopBar {
        id: bar

        anchors.left: parent.left
        anchors.margins: Metrics.huge
        anchors.right: parent.right
        anchors.top: parent.top
        draft: editor.draft
        model: editor.model
        onCloseAsked: editor.model.departure.leave(() => editor.model.closeSkill())
        onSaveAsked: {
            instructions.forceActiveFocus(); // as the button goes grey
            editor.save();
        }
        onSynchronizationAsked: editor.synchronize()
        onTrashAsked: confirmation.open()
    }
    EditorFacts {
        id: facts

        anchors.left: parent.left
        anchors.leftMargin: Metrics.huge
        anchors.right: parent.right
        anchors.rightMargin: Metrics.huge
        anchors.top: bar.bottom
        anchors.topMargin: Metrics.medium
        copies: copies
        model: editor.model
        onDetailsAsked: differences.show("Synchroniser", () => editor.model.synchronizeSelectedSkill())
    }
    EditorNotices {
        id: notices

        anchors.left: facts.left
        anchors.right: facts.right
        anchors.top: facts.bottom
        anchors.topMargin: height > 0 ? Metrics.medium : 0
        draft: editor.draft
        onComparisonAsked: editor.compareTexts()
        onDecided: instructions.forceActiveFocus()
        onReloadAsked: editor.draft.reload()
        onReplacementAsked: replacement.open()
    }
    FileTree {
        id: tree

        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.huge
        anchors.left: facts.left
        anchors.top: notices.bottom
        anchors.topMargin: Metrics.medium
        relativeFiles: editor.detail?.relativeFiles ?? []
        selectedFile: editor.selectedFile
        width: Math.min(240, parent.width / 4)
        onFileChosen: path => editor.selectedFile = path
    }
    Surface {
        anchors.bottom: tree.bottom
        anchors.left: tree.right
        anchors.leftMargin: Metrics.medium
        anchors.right: facts.right
        anchors.top: tree.top

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
        }
        AssociatedFilePane {
            id: file

            anchors.fill: instructions
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
            draft: editor.draft
            file: file.content
            model: editor.model
            path: editor.selectedFile
        }
    }
    DifferencesSheet {
        id: differences

        copies: copies
        model: editor.model
        onClosed: {
            if (Window.activeFocusItem === Window.contentItem) // as a notice has gone that had the keyboard
                instructions.forceActiveFocus();
        }
        onDeclined: editor.model.departure.stay()
    }
    StaleSheet {
        id: refusal

        draft: editor.draft
        onComparisonAsked: editor.compareTexts()
        onReloadAsked: editor.draft.reload()
        onReplacementAsked: replacement.open()
    }
    DeferredItem {
        id: comparison

        file: "TextComparisonSheet.qml"
        properties: ({ draft: editor.draft, model: editor.model })
    }
    UnsavedSheet {
        id: unsaved

        model: editor.model
        name: editor.name
        onDiscardAsked: {
            editor.draft.discard();
            go();
        }
        onSaveAsked: editor.save()
    }
    ConfirmationDialog {
        id: replacement

        acceptText: "Garder mon texte"
        message: "Votre texte remplace celui du disque, qui reste dans l’historique de la compétence."
        title: "Remplacer le texte du disque\u00A0?"
        onAccepted: editor.draft.overrule()
        onClosed: if (isAccepted && !differences.isUsed) instructions.forceActiveFocus() // as the notice goes
    }
    ConfirmationDialog {
        id: confirmation

        acceptText: "Placer dans la corbeille"
        isDestructive: true
        message: "Vous pourrez restaurer cette compétence depuis la corbeille."
            + (editor.draft.isModified ? "\n\nLes modifications non enregistrées seront perdues." : "")
        title: "Placer « " + editor.name + " » dans la corbeille ?"
        onAccepted: {
            editor.isGoing = true;
            editor.model.moveSelectedSkillToTrash();
        }
    }
}
