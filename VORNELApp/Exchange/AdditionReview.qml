pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What an addition would do: what is decided first, then what comes, what is there already, and what is replaced. */
FocusScope {
    id: review

    required property AppModel model

    /** What stands in the places of the new copies. */
    required property TargetOccupants occupants

    readonly property Addition addition: model.addition
    readonly property var newSlugs: addition.newSlugs

    /** Brings the keyboard to the first decision; false when there is none to take. */
    function focusFirstDecision(): bool {
        const first = rows.itemAt(0) as AdditionRow;
        first?.focusChoice();
        return first !== null;
    }

    DeferredItem {
        id: comparison

        file: "AdditionComparisonSheet.qml"
        properties: ({ model: review.model })
    }
    Connections {
        function onChosen(choice: int) {
            review.addition.choose((comparison.item as AdditionComparisonSheet).row, choice);
        }

        ignoreUnknownSignals: true
        target: comparison.item
    }
    Row {
        id: cards

        spacing: Metrics.large

        StatCard {
            hue: value > 0 ? Colors.success : Colors.text
            label: value === 1 ? "NOUVELLE" : "NOUVELLES"
            value: review.newSlugs.length
        }
        StatCard {
            hue: value > 0 ? Colors.warning : Colors.text
            label: value === 1 ? "DIFFÉRENTE" : "DIFFÉRENTES"
            value: review.addition.differingCount
        }
        StatCard {
            label: value === 1 ? "IDENTIQUE" : "IDENTIQUES"
            value: review.addition.identicalSlugs.length
        }
    }
    ActionButton {
        anchors.bottom: cards.bottom
        anchors.right: parent.right
        enabled: !review.model.isWorking
        symbol: "rotate-cw"
        text: "Relancer l’analyse"
        onClicked: review.addition.review()
    }
    Surface {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: cards.bottom
        anchors.topMargin: Metrics.large

        ScrollColumn {
            anchors.fill: parent
            anchors.margins: Metrics.hairline
            enabled: !review.model.isWorking
            padding: Metrics.large
            spacing: Metrics.large

            Column {
                spacing: Metrics.small
                visible: review.addition.differingCount > 0
                width: parent.width

                AdditionChoices {
                    count: review.addition.differingCount
                    width: parent.width
                    onAllChosen: choice => review.addition.chooseAll(choice)
                }
                Repeater {
                    id: rows

                    model: review.addition.differing

                    AdditionRow {
                        required property int index
                        required property skillAddition record

                        addition: record
                        width: parent?.width ?? 0
                        onChosen: choice => review.addition.choose(index, choice)
                        onComparisonAsked: {
                            comparison.make();
                            (comparison.item as AdditionComparisonSheet).compare(record, index);
                        }
                    }
                }
            }
            AddedSkills {
                slugs: review.newSlugs
                symbol: "plus"
                symbolColor: Colors.success
                title: slugs.length === 1 ? "Cette compétence sera ajoutée." : "Ces compétences seront ajoutées."
                width: parent.width
            }
            AddedSkills {
                slugs: review.addition.identicalSlugs
                symbol: "check"
                symbolColor: Colors.muted
                title: slugs.length === 1 ? "Cette compétence est déjà dans la bibliothèque, à l’identique." : "Ces compétences sont déjà dans la bibliothèque, à l’identique."
                width: parent.width
            }
            OccupiedNotice {
                occupants: review.occupants
                verb: "ajouter"
                width: parent.width
            }
            RevisedCopies {
                model: review.model
                width: Math.min(implicitWidth, parent.width)
            }
        }
    }
}
