pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** What a scan found: three counters, the collisions to settle, and the folders left out. */
FocusScope {
    id: review

    required property AppModel model

    readonly property var plan: model.importPlan

    /** What the import would replace, or can't. */
    readonly property TargetOccupants occupants: replacements.found

    /** Whether a choice is being recorded. Others can be made meanwhile. */
    property bool isRecording: false

    /** Brings the control that the keyboard was moved to into view. A click leaves the list where it is. */
    function reveal(): void {
        const item = Window.activeFocusItem as T.Control;
        if (!activeFocus || !item?.visualFocus)
            return;
        const top = item.mapToItem(rows, 0, 0).y - Metrics.large;
        const bottom = top + item.height + 2 * Metrics.large;
        const wanted = Math.max(Math.min(scroller.contentY, top), bottom - scroller.height);
        scroller.contentY = Math.max(0, Math.min(wanted, scroller.contentHeight - scroller.height));
    }

    function choose(id: uuid, choice: int): void {
        isRecording = true;
        model.resolveCollision(id, choice);
    }

    /** Brings the keyboard to the first decision; false when there is none to take. */
    function focusFirstDecision(): bool {
        const first = collisions.itemAt(0);
        first?.focusChoice();
        return first !== null;
    }

    function resume(): void {
        if (!focusFirstDecision())
            rescan.forceActiveFocus(Qt.TabFocusReason);
    }

    Window.onActiveFocusItemChanged: reveal()

    Connections {
        function onIsWorkingChanged() {
            review.isRecording = review.isRecording && review.model.isWorking;
        }

        target: review.model
    }
    DeferredItem {
        id: comparison

        file: "CollisionSheet.qml"
        properties: ({ model: review.model })
    }
    Connections {
        function onChosen(choice: int) {
            review.choose((comparison.item as CollisionSheet).collision.id, choice);
        }

        ignoreUnknownSignals: true
        target: comparison.item
    }
    ColumnLayout {
        anchors.fill: parent
        spacing: Metrics.large

        RowLayout {
            Layout.fillWidth: true
            spacing: Metrics.large

            StatCard {
                label: "COMPÉTENCES"
                value: review.plan.candidates.length
            }
            StatCard {
                hue: value > 0 ? Colors.warning : Colors.text
                label: "DOUBLONS"
                value: review.plan.collisions.length
            }
            StatCard {
                label: value === 1 ? "IGNORÉE" : "IGNORÉES"
                value: review.plan.blocked.length
            }
            Item {
                Layout.fillWidth: true
            }
            ActionButton {
                id: rescan

                Layout.alignment: Qt.AlignBottom
                enabled: !review.model.isWorking
                symbol: "rotate-cw"
                text: "Relancer l’analyse"
                onClicked: review.model.beginImportScan()
            }
        }
        Surface {
            Layout.fillHeight: true
            Layout.fillWidth: true

            Flickable {
                id: scroller

                anchors.fill: parent
                anchors.margins: Metrics.hairline
                boundsBehavior: Flickable.StopAtBounds
                clip: true
                contentHeight: rows.height
                contentWidth: width
                onContentHeightChanged: review.reveal()
                onHeightChanged: review.reveal()

                T.ScrollBar.vertical: ScrollRail {}

                Column {
                    id: rows

                    padding: Metrics.large
                    spacing: Metrics.small
                    width: parent.width

                    Row {
                        height: Metrics.rowHeight
                        spacing: Metrics.medium
                        visible: review.plan.collisions.length === 0

                        Symbol {
                            anchors.verticalCenter: parent.verticalCenter
                            color: Colors.success
                            height: Metrics.symbol
                            name: "check"
                            width: Metrics.symbol
                        }
                        Label {
                            anchors.verticalCenter: parent.verticalCenter
                            text: "Aucune collision"
                        }
                    }
                    CollisionsHeader {
                        count: review.plan.collisions.length
                        enabled: review.isRecording || !review.model.isWorking
                        visible: count > 0
                        width: rows.width - 2 * rows.padding
                        onAllChosen: choice => {
                            review.isRecording = true;
                            review.model.resolveCollisions(choice);
                        }
                    }
                    Repeater {
                        id: collisions

                        model: CollisionListModel {
                            model: review.model
                        }

                        CollisionRow {
                            required property importCollision record

                            collision: record
                            enabled: review.isRecording || !review.model.isWorking
                            width: rows.width - 2 * rows.padding
                            onChosen: choice => review.choose(record.id, choice)
                            onComparisonAsked: {
                                comparison.make();
                                (comparison.item as CollisionSheet).compare(record);
                            }
                        }
                    }
                    BlockedFolders {
                        blocked: review.plan.blocked
                        visible: review.plan.blocked.length > 0
                        width: rows.width - 2 * rows.padding
                    }
                    ImportReplacements {
                        id: replacements // last, so that it moves nothing when it appears

                        model: review.model
                        topPadding: Metrics.large
                        width: rows.width - 2 * rows.padding
                        onEmptied: review.resume()
                    }
                }
            }
        }
    }
}
