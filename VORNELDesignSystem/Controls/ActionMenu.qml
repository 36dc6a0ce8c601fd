import QtQuick
import QtQuick.Templates as T

/**
 * A list of commands that opens below a button. Those that have no room in the window are scrolled to; letters go to the
 * next one that begins with them.
 */
T.Menu {
    id: menu

    property Item formerFocus

    /** Whether it was opened by the keyboard, for which its first command or the chosen one is the current one. */
    property bool isByKeyboard: false

    readonly property CommandSearch search: CommandSearch {
        menu: menu
    }

    function firstCommand(): int {
        let first = -1;
        for (let index = 0; index < count; ++index) {
            const item = itemAt(index) as ActionMenuItem;
            if (item?.isChosen)
                return index;
            if (first < 0 && item?.enabled)
                first = index;
        }
        return first;
    }

    implicitWidth: 240
    implicitHeight: Math.min(contentHeight + topPadding + bottomPadding, (parent?.Window.height ?? 0) - 2 * margins)
    margins: Metrics.small
    modal: true // or a control below could show its hint over the menu
    overlap: 1
    padding: Metrics.tiny
    onAboutToShow: {
        formerFocus = parent.Window.activeFocusItem;
        isByKeyboard = (formerFocus as T.Control)?.visualFocus ?? false;
        contentItem.parent.Accessible.name = Qt.binding(() => title); // for assistive tools, this item of Qt's is the menu
        contentItem.parent.Keys.forwardTo = [search]; // it gets what no command takes, even while none is current
    }
    onOpened: if (isByKeyboard) currentIndex = firstCommand()
    onClosed: formerFocus?.forceActiveFocus(Qt.PopupFocusReason)

    background: Rectangle {
        border.color: Colors.line
        border.width: Metrics.hairline
        color: Colors.raised
        radius: Metrics.controlRadius
    }
    contentItem: ListView {
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        currentIndex: menu.currentIndex
        implicitHeight: contentHeight
        interactive: contentHeight > height
        model: menu.contentModel

        T.ScrollBar.vertical: ScrollRail {}
    }
    delegate: ActionMenuItem {}
}
