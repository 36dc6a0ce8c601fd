pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/**
 * The version that is looked at: its files, below them what differs in the one that is chosen, line by line, and what
 * brings it back.
 */
Surface {
    id: view

    required property AppModel model
    required property VersionList versions

    readonly property bool isNarrow: width < 560
    readonly property bool canAct: !model.isWorking
    readonly property string skillID: String(versions.skillID)

    /** Whether it is compared with the version before, and not with what there is now. */
    property bool isSinceFormer: false

    /** The file that the user has chosen, which stays chosen from version to version; empty before. */
    property string wantedPath

    /** The file that is shown, which stays shown while the version does; and of what lines are. */
    property string shownPath
    property string shownLines

    readonly property VersionFileRow file: list.currentItem as VersionFileRow

    /** Whether taking it may change the skill; since the version before, nothing is known of what there is now. */
    readonly property bool isFileOther: {
        if (file === null || versions.isChosenEqual)
            return false;
        return isSinceFormer ? file.isInVersion : file.symbol !== "";
    }

    readonly property string legend: {
        if (isSinceFormer && versions.former === "")
            return "C’est la plus ancienne version gardée\u00A0: il n’y en a pas d’autre à laquelle la comparer.";
        if (isSinceFormer)
            return "Ce qui est marqué + est venu avec cette version, ce qui est marqué − a disparu avec elle.";
        const unsaved = model.openSkill.draft.isModified ? " Votre texte n’est pas enregistré\u00A0: «\u00A0maintenant\u00A0» est le texte enregistré." : "";
        return "Ce qui est marqué − était dans cette version, ce qui est marqué + est venu depuis." + unsaved;
    }

    /** Compares the version anew; the oldest one with nothing before it. */
    function compare(): void {
        const former = isSinceFormer ? versions.former : "";
        files.compare(versions.skillID, isSinceFormer && former === "" ? "" : versions.chosen, former);
        if (list.count > 0)
            return;
        shownPath = "";
        lines.clear();
    }

    /** Compares the chosen file. */
    function showLines(): void {
        const path = files.pathAt(list.currentIndex);
        const wanted = versions.chosen + (isSinceFormer ? "/former/" : "/now/") + path;
        if (path === "" || shownLines !== wanted)
            lines.clear();
        shownLines = wanted;
        shownPath = path;
        if (path === "")
            return;
        if (isSinceFormer)
            lines.compareVersions(versions.former, versions.chosen, path);
        else
            lines.compareVersion(versions.chosen, path);
    }

    Accessible.name: versions.chosenTitle
    Accessible.role: Accessible.Pane
    onIsSinceFormerChanged: compare()

    Connections {
        function onShown() {
            view.compare();
        }

        target: view.versions
    }
    Connections {
        function onOverviewRead() {
            view.compare();
        }

        target: view.model
    }
    VersionFiles {
        id: files

        model: view.model
        onShown: {
            list.currentIndex = Math.max(0, files.rowOf(view.wantedPath || view.shownPath));
            view.showLines();
        }
    }
    FileComparison {
        id: lines

        model: view.model
        skillID: view.versions.skillID
    }
    Column {
        id: head

        anchors.left: parent.left
        anchors.margins: Metrics.large
        anchors.right: parent.right
        anchors.top: parent.top
        spacing: Metrics.medium

        Row {
            spacing: Metrics.medium
            width: parent.width

            Label {
                anchors.verticalCenter: parent.verticalCenter
                font: Typography.section
                text: view.versions.chosenTitle
                width: Math.min(implicitWidth, head.width - (badge.visible ? badge.width + Metrics.medium : 0))
            }
            StatusBadge {
                id: badge

                anchors.verticalCenter: parent.verticalCenter
                text: "ACTUELLE"
                tone: StatusBadge.Success
                visible: view.versions.isChosenCurrent
            }
        }
        VersionActions {
            canTakeFile: view.canAct && view.isFileOther
            canTakeVersion: view.canAct && !view.versions.isChosenEqual
            hasText: view.file !== null && view.file.isInVersion && !view.file.isFolder
            isCompact: view.isNarrow
            isFolder: view.file?.isFolder ?? false
            isRemoval: view.file !== null && !view.file.isInVersion
            width: parent.width
            onFileAsked: {
                if (isRemoval)
                    view.model.history.removeFile(view.versions.chosen, view.file.path);
                else
                    view.model.history.bringBackFile(view.versions.chosen, view.file.path);
            }
            onTextAsked: view.model.history.copyText(view.versions.chosen, view.file.path)
            onVersionAsked: view.model.history.bringBack(view.versions.chosen)
        }
        ComparisonChoice {
            isSinceFormer: view.isSinceFormer
            width: parent.width
            onChosen: isSinceFormer => view.isSinceFormer = isSinceFormer
        }
        Label {
            color: Colors.secondary
            font: Typography.small
            lineHeight: 1.35
            text: view.legend
            width: parent.width
            wrapMode: Text.Wrap
        }
    }
    Surface {
        id: pane

        anchors.left: head.left
        anchors.right: head.right
        anchors.top: head.bottom
        anchors.topMargin: Metrics.medium
        border.color: list.activeFocus ? Colors.accent : Colors.line
        color: Colors.canvas
        height: Math.min(list.contentHeight, Math.round(view.height / 5)) + 2 * Metrics.small

        RowList {
            id: list

            anchors.fill: parent
            anchors.margins: Metrics.small
            model: files
            name: "Fichiers de cette version"
            onCurrentIndexChanged: {
                if (!activeFocus)
                    return;
                view.wantedPath = files.pathAt(currentIndex);
                view.showLines();
            }

            delegate: VersionFileRow {
                width: list.width - (list.rail.visible ? list.rail.width : 0)
                onClicked: {
                    list.forceActiveFocus(Qt.MouseFocusReason);
                    list.currentIndex = index;
                }
            }
        }
    }
    DifferentLines {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.large
        anchors.left: head.left
        anchors.right: head.right
        anchors.top: pane.bottom
        anchors.topMargin: Metrics.medium
        color: Colors.canvas
        comparison: lines
    }
    Label {
        anchors.centerIn: parent
        color: Colors.secondary
        text: files.explanation
        visible: list.count === 0 && text !== ""
        width: Math.min(implicitWidth, parent.width - 2 * Metrics.huge)
        wrapMode: Text.Wrap
    }
}
