pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** The skills of which a copy isn't as it should be, to be looked at or synchronised. */
FocusScope {
    id: attention

    required property AppModel model

    readonly property string countText: {
        const total = entries.totalCount;
        const counted = total === 1 ? "1 compétence" : total + " compétences";
        return total === 0 ? "" : entries.count === total ? counted : entries.count + " sur " + counted;
    }

    /** Nothing opens over another screen, or over a skill on its way. */
    readonly property bool isWatched: visible && !model.isDetailLoading

    /** Whether a sheet or a menu has the keyboard. */
    function isCovered(): bool {
        for (let item = Window.activeFocusItem; item; item = item.parent) {
            if (item === T.Overlay.overlay)
                return true;
        }
        return false;
    }
    function synchronize(id: uuid): void {
        if (model.isWorking)
            return;
        copies.skillID = id;
        differences.synchronizeCopies(() => model.synchronizeSkill(id));
    }

    onIsWatchedChanged: {
        if (isWatched)
            return;
        entries.forgetSurvey();
        differences.forget();
    }

    AttentionList {
        id: entries

        model: attention.model
        onSurveyed: {
            if (attention.model.isWorking)
                survey(); // what is being done may change what was seen
            else if (!attention.isCovered())
                question.open();
        }
    }
    SkillCopies {
        id: copies

        model: attention.model
    }
    DifferencesSheet {
        id: differences

        copies: copies
        model: attention.model
        onClosed: view.takeOver()
    }
    SynchronizationQuestion {
        id: question

        skills: entries
        onClosed: view.takeOver()
    }
    SkillListHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        countText: attention.countText
        line: {
            if (entries.totalCount === 0)
                return "";
            return entries.totalCount === 1 ? "Les copies de cette compétence ne sont pas identiques à la version de VORNEL."
                                            : "Les copies de ces compétences ne sont pas identiques à la version de VORNEL.";
        }
        title: "À RÉPARER"

        BusySignal {
            anchors.verticalCenter: parent.verticalCenter
            isBusy: entries.isSurveying
        }
        ActionButton {
            enabled: entries.count > 0 && !entries.isSurveying && !attention.model.isWorking
            symbol: "refresh-cw"
            text: "Tout synchroniser"
            onClicked: entries.survey()
        }
    }
    SkillListView {
        id: view

        anchors.bottom: progress.top
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        name: "À réparer"
        skills: entries

        delegate: AttentionRow {
            model: attention.model
            skills: entries
            onClicked: attention.model.selectSkill(record.id)
            onSynchronizationAsked: {
                view.currentIndex = index;
                attention.synchronize(record.id);
            }
        }
    }
    SkillListEmptiness {
        anchors.centerIn: view
        emptyHue: Colors.success
        emptyLine: "Vos assistants ont chacun une copie à jour de toutes vos compétences."
        emptySymbol: "check"
        emptyTitle: "Tout est synchronisé"
        skills: entries
        width: Math.min(480, view.width - 2 * Metrics.huge)
    }
    BatchBar {
        id: progress

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        batch: attention.model.batch
    }
}
