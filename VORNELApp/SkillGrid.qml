pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/**
 * The cards of a page. Arrows, Home and End move, Page Up and Page Down turn the page, Enter opens, Space
 * selects. A card that is dragged takes its skills to where it is dropped.
 */
FocusScope {
    id: grid

    required property AppModel model
    required property LibraryPage page
    required property SkillSelection selection

    signal trashAsked(id: uuid)

    property int currentIndex: 0
    property SkillCard currentCard

    readonly property real gap: Metrics.large
    readonly property real availableWidth: width - 2 * Metrics.huge
    readonly property int columns: Math.max(1, Math.floor((availableWidth + gap) / (Metrics.cardWidth + gap)))
    readonly property real cardWidth: Math.floor((availableWidth + gap) / columns - gap)
    readonly property real rowHeight: Metrics.cardHeight + gap
    readonly property real headerHeight: 44

    function card(index: int): SkillCard {
        return cards.itemAt(index) as SkillCard;
    }
    function choose(skill: skillSummary): void {
        if (selection.isSelecting)
            selection.toggle(skill.id);
        else
            model.selectSkill(skill.id);
    }
    /** The card that has the keyboard when the grid has. */
    function setCurrent(index: int): void {
        currentIndex = Math.max(0, Math.min(index, page.cardCount - 1));
        currentCard = card(currentIndex);
        if (page.cardCount > 0)
            currentCard.focus = true;
    }
    function moveTo(index: int): void {
        if (index < 0 || index >= page.cardCount)
            return;
        const target = card(index);
        target.forceActiveFocus(Qt.TabFocusReason);
        const top = target.record.row === 0 ? 0 : target.y - headerHeight;
        scroller.contentY = Math.max(Math.min(scroller.contentY, top), target.y + rowHeight - scroller.height);
    }
    /** Moves by rows, to the same column where the other row has it. */
    function moveBy(rows: int): void {
        const place = card(currentIndex).record;
        moveTo(page.indexAt(place.row + rows, place.column));
    }

    activeFocusOnTab: true

    Accessible.name: "Compétences"
    Accessible.role: Accessible.List
    Keys.onPressed: event => {
        event.accepted = page.cardCount > 0;
        switch (event.accepted ? event.key : 0) {
        case Qt.Key_Left:
            return moveTo(currentIndex - 1);
        case Qt.Key_Right:
            return moveTo(currentIndex + 1);
        case Qt.Key_Up:
            return moveBy(-1);
        case Qt.Key_Down:
            return moveBy(1);
        case Qt.Key_Home:
            return moveTo(0);
        case Qt.Key_End:
            return moveTo(page.cardCount - 1);
        case Qt.Key_PageUp:
            --page.currentPage;
            return;
        case Qt.Key_PageDown:
            ++page.currentPage;
            return;
        case Qt.Key_Return:
        case Qt.Key_Enter:
            return choose(card(currentIndex).skill);
        case Qt.Key_Delete:
            return trashAsked(card(currentIndex).skill.id);
        }
        event.accepted = false;
    }

    Connections {
        function onChanged() {
            grid.setCurrent(grid.currentIndex);
        }
        function onTurned() {
            grid.setCurrent(0);
            scroller.contentY = top.y;
        }

        target: grid.page
    }
    Flickable {
        id: scroller

        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        contentHeight: grid.page.rowCount * grid.rowHeight + grid.page.headingCount * grid.headerHeight + Metrics.small
        contentWidth: width

        T.ScrollBar.vertical: ScrollRail {}

        Item {
            id: top

            objectName: "library-page-top"
        }
        Repeater {
            model: grid.page.headings

            SectionHeader {
                height: grid.headerHeight
                width: grid.availableWidth
                x: Metrics.huge
                y: record.row * grid.rowHeight + record.headersAbove * grid.headerHeight
            }
        }
        Item {
            id: sheet

            height: scroller.contentHeight
            width: scroller.width

            Repeater {
                id: cards

                model: grid.page.cards

                SkillCard {
                    isSelecting: grid.selection.isSelecting
                    mostTags: grid.page.mostTags
                    width: grid.cardWidth
                    x: Metrics.huge + record.column * (grid.cardWidth + grid.gap)
                    y: record.row * grid.rowHeight + record.headersAbove * grid.headerHeight + Metrics.tiny
                    onActiveFocusChanged: if (activeFocus) grid.setCurrent(index)
                    onClicked: grid.choose(skill)
                    onSelectionAsked: grid.selection.toggle(skill.id)
                }
            }
            FocusRing {
                control: grid.currentCard
                parent: grid.currentCard
                radius: Metrics.cardRadius + 2 * Metrics.focusWidth
            }
            DragHandler {
                acceptedDevices: PointerDevice.Mouse | PointerDevice.Stylus
                dragThreshold: 6 // less than the scroller's own
                target: null
                onActiveChanged: {
                    const card = sheet.childAt(centroid.pressPosition.x, centroid.pressPosition.y) as SkillCard;
                    if (!active)
                        carried.letGo();
                    else if (card)
                        carried.lift(grid.selection, card.skill);
                }
            }
        }
    }
    SkillDrag {
        id: carried

        objectName: "library-drag"
    }
}
