import QtQuick
import QtQuick.Templates as T

/** A list of commands that opens below a button. Those that have no room in the window are scrolled to. */
T.Menu {
    id: menu

    property Item formerFocus

    /** Whether it was opened by the keyboard, for which its first command is the current one. */
    property bool isByKeyboard: false

    function firstCommand(): int {
        let index = 0;
        while (index < count && !(itemAt(index) as ActionMenuItem)?.enabled)
            ++index;
        return index;
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
