pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/**
 * A skill's files. Up and Down choose; Left and Right close and open a folder; F2 renames, Del deletes; what is copied
 * in a file manager is pasted, or dropped, here.
 */
Surface {
    id: tree

    required property AppModel model
    required property string selectedFile

    readonly property SkillDraft draft: model.openSkill.draft
    readonly property var modifiedFiles: draft.files.paths

    /** The row that has the keyboard; null while none has. */
    readonly property FileTreeRow currentRow: view.activeFocus ? view.currentItem as FileTreeRow : null

    /** Where the keyboard was before the rows were made anew. */
    property int formerRow: -1
    property string formerPath

    signal fileChosen(path: string)

    /** A file is new, and is to be edited. */
    signal fileOpened(path: string)

    /** Gives the keyboard to the row of a path or, where none shows it, to one near the current row. */
    function takeKeyboard(path: string): void {
        const row = files.rowOf(path);
        view.forceLayout();
        view.moveTo(row >= 0 ? row : view.currentIndex);
    }

    function openMenu(row: FileTreeRow, place: point): void {
        menu.openFor(row.path, row.isFolder, row, place);
    }

    Accessible.name: "Arborescence"
    Accessible.role: Accessible.Pane
    border.color: view.activeFocus || dropArea.containsDrag ? Colors.accent : Colors.line

    FileTreeActions {
        id: actions

        model: tree.model
        onSettled: (path, isNew) => {
            if (isNew && tree.model.selectedSkill.relativeFiles.includes(path))
                tree.fileOpened(path);
            else
                tree.takeKeyboard(path);
        }
    }
    Connections {
        function onModelAboutToBeReset() {
            tree.formerRow = view.activeFocus ? view.currentIndex : -1;
            tree.formerPath = tree.currentRow?.path ?? "";
        }

        function onModelReset() {
            if (tree.formerRow < 0)
                return;
            view.currentIndex = tree.formerRow;
            tree.takeKeyboard(tree.formerPath);
        }

        target: files
    }
    FileMenu {
        id: menu

        actions: actions
    }
    Shortcut {
        enabled: tree.currentRow !== null
        sequences: ["Menu", "Shift+F10"]
        onActivated: tree.openMenu(tree.currentRow, Qt.point(Metrics.large, tree.currentRow.height))
    }
    Label {
        id: heading

        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        anchors.verticalCenter: more.verticalCenter
        color: Colors.secondary
        font: Typography.label
        text: "ARBORESCENCE"

        Accessible.name: "Arborescence"
    }
    ActionButton {
        id: more

        anchors.right: parent.right
        anchors.rightMargin: Metrics.tiny
        anchors.top: parent.top
        anchors.topMargin: Metrics.tiny
        isCompact: true
        symbol: "plus"
        text: "Nouveau fichier, nouveau dossier…"
        onClicked: menu.openFor("", true, more, Qt.point(more.width - menu.width, more.height + Metrics.tiny))
    }
    RowList {
        id: view

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: Metrics.small
        anchors.right: parent.right
        anchors.top: more.bottom
        anchors.topMargin: Metrics.tiny
        name: "Fichiers"

        delegate: FileTreeRow {
            isModified: path === "SKILL.md" ? tree.draft.isTextModified : tree.modifiedFiles.includes(path)
            selectedFile: tree.selectedFile
            width: view.width - (view.rail.visible ? view.rail.width : 0)
            onClicked: {
                if (isFolder)
                    files.setOpen(index, !isOpen);
                else
                    tree.fileChosen(path);
            }
            onMenuAsked: place => tree.openMenu(this, place)
            onOpenAsked: isOpen => files.setOpen(index, isOpen)

            Keys.onDeletePressed: actions.askToRemove(path, isFolder)
            Keys.onPressed: event => {
                event.accepted = true;
                if (event.key === Qt.Key_F2)
                    actions.askForName(path, isFolder);
                else if (event.matches(StandardKey.Copy))
                    actions.copy(path);
                else if (event.matches(StandardKey.Paste))
                    actions.paste(isFolder ? path : actions.folderOf(path));
                else
                    event.accepted = false;
            }
        }
        model: SkillFileListModel {
            id: files

            emptyFolders: tree.model.openSkill.files.emptyFolders
            relativeFiles: tree.model.selectedSkill?.relativeFiles ?? []
            unsavedFiles: tree.modifiedFiles
        }
    }
    DropArea {
        id: dropArea

        /** The folder below the pointer; the skill's own elsewhere. */
        function folderAt(x: real, y: real): string {
            const place = mapToItem(view.contentItem, x, y);
            const row = view.itemAt(place.x, place.y) as FileTreeRow;
            if (row === null)
                return "";
            return row.isFolder ? row.path : actions.folderOf(row.path);
        }

        anchors.fill: parent
        enabled: actions.canChange
        keys: ["text/uri-list"]
        onDropped: drop => {
            drop.accept(Qt.CopyAction);
            actions.bring(drop.urls, folderAt(drop.x, drop.y));
        }
    }
}
