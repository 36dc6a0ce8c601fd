pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/**
 * The cards of a page. Arrows, Home and End move, and select with Shift; Page Up and Page Down turn the page, Enter
 * opens, Alt+Enter asks for the properties, Space or a Ctrl+click selects, a Shift+click all up to there; a right click or
 * the Menu key asks for its menu. A card that is dragged takes its skills to where it is dropped.
 */
FocusScope {
    id: grid

    required property AppModel model
    required property CardPage page
    required property SkillSelection selection

    signal trashAsked(id: uuid)
    signal propertiesAsked(id: uuid)
    signal menuAsked(card: SkillCard, place: point)

    property int currentIndex: 0
    property SkillCard currentCard

    /** The skill on it, which the keyboard follows to another place of the page. */
    property skillSummary currentSkill

    /** How far below the top of the page it was last. */
    property real currentPlace: 0

    /** Where its skill stood when the keyboard left the grid; -1 while it can't have moved. */
    property int leftIndex: -1

    /** From where Shift selects: the card that had the keyboard last without it. */
    property int anchorIndex: 0

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
    /** Selects the card here, or no longer does. */
    function toggle(index: int): void {
        selection.toggle(card(index).skill.id);
    }
    /** Selects all cards up to here. */
    function selectTo(index: int): void {
        const anchor = anchorIndex;
        page.select(anchor, index);
        moveTo(index);
        anchorIndex = anchor;
    }
    /** Moves and, with Shift, selects on the way. */
    function go(index: int, modifiers: int): void {
        if (index < 0 || index >= page.cardCount)
            return;
        if (modifiers & Qt.ShiftModifier)
            return selectTo(index);
        moveTo(index);
    }
    /** The card that has the keyboard when the grid has. */
    function setCurrent(index: int): void {
        currentIndex = Math.max(0, Math.min(index, page.cardCount - 1));
        anchorIndex = currentIndex;
        currentCard = card(currentIndex);
        if (page.cardCount === 0)
            return;
        currentPlace = currentCard.y;
        currentSkill = currentCard.skill;
        currentCard.focus = true;
    }
    /**
     * The current skill is on this card now, though the user has done nothing: the keyboard goes there and, if it was in
     * view, the page is scrolled as far. A page that shows its top stays there.
     */
    function follow(index: int): void {
        const place = currentPlace;
        const isInView = place + rowHeight > scroller.contentY && place < scroller.contentY + scroller.height;
        if (!activeFocus && leftIndex < 0)
            leftIndex = currentIndex;
        setCurrent(index);
        if (isInView && scroller.contentY > 0)
            scroller.contentY = Math.max(0, scroller.contentY + currentPlace - place);
    }
    /** A card has got the keyboard. A popup that closes gives it back to where its skill stood when it opened. */
    function take(index: int): void {
        if (index === leftIndex)
            currentCard.forceActiveFocus(Qt.OtherFocusReason);
        else
            setCurrent(index);
        arrival.start();
    }
    function moveTo(index: int): void {
        const target = card(index);
        leftIndex = -1;
        target.forceActiveFocus(Qt.TabFocusReason);
        const top = target.record.row === 0 ? 0 : target.y - headerHeight;
        scroller.contentY = Math.max(Math.min(scroller.contentY, top), target.y + rowHeight - scroller.height);
    }
    /** The card some rows away, in the same column where the other row has it. */
    function indexBeyond(rows: int): int {
        const place = card(currentIndex).record;
        return page.indexAt(place.row + rows, place.column);
    }

    activeFocusOnTab: true

    Accessible.name: "Compétences"
    Accessible.role: Accessible.List
    Keys.onPressed: event => {
        event.accepted = page.cardCount > 0;
        switch (event.accepted ? event.key : 0) {
        case Qt.Key_Left:
            return go(currentIndex - 1, event.modifiers);
        case Qt.Key_Right:
            return go(currentIndex + 1, event.modifiers);
        case Qt.Key_Up:
            event.accepted = indexBeyond(-1) >= 0 || (event.modifiers & Qt.ShiftModifier) !== 0; // else the search above takes it
            return go(indexBeyond(-1), event.modifiers);
        case Qt.Key_Down:
            return go(indexBeyond(1), event.modifiers);
        case Qt.Key_Home:
            return go(0, event.modifiers);
        case Qt.Key_End:
            return go(page.cardCount - 1, event.modifiers);
        case Qt.Key_PageUp:
            --page.currentPage;
            return;
        case Qt.Key_PageDown:
            ++page.currentPage;
            return;
        case Qt.Key_Return:
        case Qt.Key_Enter:
            if (event.modifiers & Qt.AltModifier)
                return propertiesAsked(card(currentIndex).skill.id);
            return choose(card(currentIndex).skill);
        case Qt.Key_Delete:
            return trashAsked(card(currentIndex).skill.id);
        }
        event.accepted = false;
    }

    Shortcut {
        enabled: grid.activeFocus && grid.page.cardCount > 0
        sequences: ["Menu", "Shift+F10"]
        onActivated: grid.menuAsked(grid.currentCard, Qt.point(Metrics.huge, grid.currentCard.height / 2))
    }
    Timer {
        id: arrival

        interval: 0 // as the popup gives it back twice
        onTriggered: grid.leftIndex = -1
    }
    Connections {
        function onChanged() {
            const index = grid.page.indexOf(grid.currentSkill.id);
            if (index < 0 || grid.model.isWorking)
                grid.setCurrent(grid.currentIndex);
            else
                grid.follow(index);
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
                    onActiveFocusChanged: if (activeFocus) grid.take(index)
                    onClicked: grid.choose(skill)
                    onIsHeldChanged: scroller.interactive = !isHeld // a fast drag would flick it
                    onMenuAsked: place => grid.menuAsked(this, place)
                    onRangeAsked: grid.selectTo(index)
                    onSelectionAsked: {
                        grid.leftIndex = -1;
                        forceActiveFocus(Qt.MouseFocusReason);
                        grid.toggle(index);
                    }
                }
            }
            FocusRing {
                control: grid.currentCard
                parent: grid.currentCard
                radius: Metrics.cardRadius + 2 * Metrics.focusWidth
            }
            DragHandler {
                acceptedDevices: PointerDevice.Mouse | PointerDevice.Stylus
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
