import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** The working window: the sidebar, the toolbar, and the screen or the skill that they lead to. */
FocusScope {
    id: shell

    required property AppModel model

    function create(): void {
        model.departure.leave(Departure.ToCreation);
    }

    function importSkills(): void {
        importing.make();
        (importing.item as ImportSheet).open();
    }

    Keys.onEscapePressed: {
        if (model.errorMessage !== "")
            model.clearError();
        else
            model.departure.leave(Departure.ToList);
    }

    Keys.onUpPressed: event => {
        event.accepted = content.activeFocus && !content.isSkillOpen; // nothing in the content has used it
        if (event.accepted)
            toolbar.focusSearch();
    }

    Shortcut {
        sequence: "Ctrl+F"
        onActivated: {
            if (content.isSkillOpen)
                content.editor.find();
            else
                toolbar.focusSearch();
        }
    }
    Shortcut {
        sequence: "F5"
        onActivated: if (!shell.model.isWorking) shell.model.reload()
    }
    Shortcut {
        sequence: "Ctrl+N"
        onActivated: shell.create()
    }
    UndoShortcuts {
        model: shell.model
    }
    Connections {
        function onErrorMessageChanged() {
            if (shell.model.errorMessage !== "")
                shell.model.refreshOverview(); // it may be done in part, or another program is the cause
        }

        function onSelectedDestinationChanged() {
            shell.model.clearError(); // it was about the screen that is left
        }

        target: shell.model
    }
    Connections {
        function onLeft(exit: int) {
            if (exit !== Departure.ToCreation)
                return;
            creation.make();
            (creation.item as CreateSkillView).open();
        }

        target: shell.model.departure
    }
    DeferredItem {
        id: creation

        file: "CreateSkillView.qml"
        properties: ({ model: shell.model })
    }
    Connections {
        function onClosed() {
            if (!shell.activeFocus || content.isSkillOpen) // the one just created, for example
                content.takeKeyboard();
        }

        ignoreUnknownSignals: true
        target: creation.item
    }
    Sidebar {
        id: sidebar

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.top: parent.top
        model: shell.model
        width: Metrics.sidebarWidth
    }
    ShellToolbar {
        id: toolbar

        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: parent.top
        isSkillOpen: content.isSkillOpen
        model: shell.model
        onCreationAsked: shell.create()
        onResultsAsked: content.enterResults()
        onSynchronizationAsked: shell.model.openSkill.synchronize()
    }
    StrayTexts {
        id: strays

        model: shell.model
    }
    DeferredItem {
        id: stray

        anchors.left: sidebar.right
        anchors.leftMargin: Metrics.huge
        anchors.right: parent.right
        anchors.rightMargin: Metrics.huge
        anchors.top: toolbar.bottom
        anchors.topMargin: visible ? Metrics.large : 0
        file: "StrayNotice.qml"
        height: visible ? implicitHeight : 0
        isWanted: strays.notice !== ""
        properties: ({ texts: strays })
    }
    Connections {
        function onDecided() {
            content.takeKeyboard();
        }

        ignoreUnknownSignals: true
        target: stray.item
    }
    NewSkills {
        id: newSkills

        model: shell.model
    }
    DeferredItem {
        id: importing

        file: "ImportSheet.qml"
        properties: ({ model: shell.model })
    }
    Connections {
        function onClosed() {
            if (!shell.activeFocus || !shell.Window.activeFocusItem.visible) // who asked for it may have gone
                content.takeKeyboard();
        }

        ignoreUnknownSignals: true
        target: importing.item
    }
    Connections {
        function onBegun() {
            adding.make();
            (adding.item as AdditionSheet).open();
        }

        target: shell.model.addition
    }
    DeferredItem {
        id: adding

        file: "AdditionSheet.qml"
        properties: ({ model: shell.model })
    }
    Connections {
        function onClosed() {
            if (!shell.activeFocus || !shell.Window.activeFocusItem.visible) // who asked for it may have gone
                content.takeKeyboard();
        }

        ignoreUnknownSignals: true
        target: adding.item
    }
    Connections {
        function onPlaceAsked() {
            exporting.make();
            (exporting.item as ExportDialogs).ask();
        }

        target: shell.model.skillExport
    }
    DeferredItem {
        id: exporting

        file: "ExportDialogs.qml"
        properties: ({ model: shell.model })
    }
    Connections {
        function onIsMergingChanged() {
            if (!shell.model.adoption.isMerging)
                return;
            merging.make();
            (merging.item as MergeSheet).open();
        }

        target: shell.model.adoption
    }
    DeferredItem {
        id: merging

        file: "MergeSheet.qml"
        properties: ({ model: shell.model })
    }
    ShellContent {
        id: content

        anchors.bottom: texts.top
        anchors.bottomMargin: texts.visible || news.visible ? Metrics.large : 0
        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: stray.bottom
        focus: true
        model: shell.model
        onCreationAsked: shell.create()
        onImportAsked: shell.importSkills()
        onIsSkillOpenChanged: {
            if (isSkillOpen && toolbar.isSearching) // in a field that is hidden now
                takeKeyboard();
            if (!isSkillOpen)
                shell.model.clearError();
        }
    }
    DeferredItem {
        id: texts

        anchors.bottom: news.top
        anchors.bottomMargin: visible ? Metrics.large : 0
        anchors.left: stray.left
        anchors.right: stray.right
        file: "ImportedTextsNotice.qml"
        height: visible ? implicitHeight : 0
        isWanted: shell.model.importedTexts.notice !== ""
        properties: ({ model: shell.model })
    }
    Connections {
        function onDecided() {
            content.takeKeyboard();
        }

        ignoreUnknownSignals: true
        target: texts.item
    }
    DeferredItem {
        id: news

        anchors.bottom: parent.bottom
        anchors.bottomMargin: visible ? Metrics.large : 0
        anchors.left: stray.left
        anchors.right: stray.right
        file: "NewSkillsNotice.qml"
        height: visible ? implicitHeight : 0
        isWanted: newSkills.notice !== ""
        properties: ({ model: shell.model, skills: newSkills })
    }
    Connections {
        function onDecided() {
            content.takeKeyboard();
        }

        function onImportAsked() {
            shell.importSkills();
        }

        ignoreUnknownSignals: true
        target: news.item
    }
    OpeningOverlay {
        anchors.bottom: parent.bottom
        anchors.left: sidebar.right
        anchors.right: parent.right
        anchors.top: toolbar.bottom
        visible: shell.model.isDetailLoading
    }
    Confirmations {
        parent: shell.Window.contentItem
        x: Metrics.small
        y: Math.min(sidebar.statusTop, shell.Window.height) - height - Metrics.large
        z: (T.Overlay.overlay?.z ?? 0) + 1 // sheets don't hide it
        model: shell.model
        onDecided: content.takeKeyboard()
    }
}
