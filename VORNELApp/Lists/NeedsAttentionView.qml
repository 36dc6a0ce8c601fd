pragma ComponentBehavior: Bound

import QtQuick
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

    function enterResults(): void {
        if (entries.count > 0)
            view.moveTo(0);
    }

    AttentionList {
        id: entries

        model: attention.model
    }
    SkillSelection {
        id: held

        destination: AppStates.Destination.needsAttention
        model: attention.model
    }
    SkillActions {
        id: actions

        anchors.fill: parent
        model: attention.model
        selection: held
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
            isBusy: actions.synchronization.isSurveying
        }
        ActionButton {
            enabled: entries.count > 0 && !actions.synchronization.isSurveying && !attention.model.isWorking
            symbol: "folder-sync"
            text: "Tout synchroniser"
            onClicked: actions.synchronization.synchronizeAll(entries.ids())
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
            onMenuAsked: place => {
                actions.menu.canAdopt = record.canAdopt;
                actions.menu.unreadable = record.unreadable;
                actions.menu.openFor(record.skill, this, place);
            }
            onAdoptionAsked: {
                view.currentIndex = index;
                attention.model.replacement.show(record.id);
            }
            onSynchronizationAsked: {
                view.currentIndex = index;
                actions.synchronization.synchronize([record.id]);
            }
        }
    }
    EmptySkillList {
        anchors.centerIn: view
        readonly property bool isKnown: attention.model.isOverviewCurrent

        emptyHue: isKnown ? Colors.success : Colors.danger
        emptyLine: isKnown ? "Vos assistants ont chacun une copie à jour de toutes vos compétences."
            : "L’état des copies n’est pas connu. «\u00A0Actualiser\u00A0» (F5) relit les dossiers."
        emptySymbol: isKnown ? "check" : "triangle-alert"
        emptyTitle: isKnown ? "Tout est synchronisé" : "Lecture impossible"
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
