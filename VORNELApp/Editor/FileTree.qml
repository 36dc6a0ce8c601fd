pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A skill's files. Up and Down choose; Left and Right close and open a folder. */
Surface {
    id: tree

    required property var relativeFiles
    required property string selectedFile

    signal fileChosen(path: string)

    Accessible.name: "Arborescence"
    Accessible.role: Accessible.Pane
    border.color: view.activeFocus ? Colors.accent : Colors.line

    Label {
        id: heading

        anchors.left: parent.left
        anchors.margins: Metrics.large
        anchors.top: parent.top
        color: Colors.secondary
        font: Typography.label
        text: "ARBORESCENCE"

        Accessible.name: "Arborescence"
    }
    RowList {
        id: view

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: Metrics.small
        anchors.right: parent.right
        anchors.top: heading.bottom
        name: "Fichiers"

        delegate: FileTreeRow {
            selectedFile: tree.selectedFile
            width: view.width - (view.rail.visible ? view.rail.width : 0)
            onClicked: {
                if (isFolder)
                    files.setOpen(index, !isOpen);
                else
                    tree.fileChosen(path);
            }
            onOpenAsked: isOpen => files.setOpen(index, isOpen)
        }
        model: SkillFileListModel {
            id: files

            relativeFiles: tree.relativeFiles
        }
    }
}
