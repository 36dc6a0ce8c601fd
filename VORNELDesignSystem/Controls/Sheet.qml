import QtQuick
import QtQuick.Templates as T

/**
 * A panel over the window that keeps the keyboard until it is closed. Esc closes it, unless it is guarded. Its
 * content is below its title. The keyboard goes back to where it was, unless another panel has opened meanwhile.
 */
T.Popup {
    id: sheet

    required property string title

    /** The item that gets the keyboard whenever the sheet opens. */
    property Item firstFocus

    property Item formerFocus

    /** Whether the sheet is open, and not closing already. */
    property bool isUsed: false

    /** Whether Esc only asks to leave. */
    property bool isGuarded: false

    signal departureAsked

    /** Enter was pressed, and no control in the sheet has used it. */
    signal submitted

    function isWithin(item: Item, ancestor: Item): bool {
        while (item !== null && item !== ancestor)
            item = item.parent;
        return item !== null;
    }

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2)
    implicitWidth: Math.min(520, parent.width - 2 * Metrics.page)
    implicitHeight: Math.min(contentHeight + topPadding + bottomPadding, parent.height - 2 * Metrics.page)
    contentHeight: contentItem.implicitHeight
    closePolicy: isGuarded ? T.Popup.NoAutoClose : T.Popup.CloseOnEscape
    focus: true
    modal: true
    padding: Metrics.huge
    onAboutToHide: isUsed = false
    onAboutToShow: {
        isUsed = true;
        formerFocus = parent.Window.activeFocusItem;
        if (firstFocus !== null)
            firstFocus.focus = true; // not the item that had it when the sheet was closed
        contentItem.parent.Accessible.name = Qt.binding(() => title); // for assistive tools, this item of Qt's is the dialog
    }
    onClosed: {
        const current = parent.Window.activeFocusItem;
        const isTaken = isWithin(current, parent) && !isWithin(current, contentItem.parent);
        const isOfClosedPanel = isWithin(formerFocus, parent) && !formerFocus.visible;
        if (!isTaken && !isOfClosedPanel)
            formerFocus?.forceActiveFocus(Qt.PopupFocusReason);
    }

    background: Rectangle {
        border.color: Colors.line
        border.width: Metrics.hairline
        color: Colors.raised
        radius: Metrics.cardRadius
    }
    contentItem: Column {
        spacing: Metrics.large

        Keys.onEnterPressed: sheet.submitted()
        Keys.onEscapePressed: event => {
            event.accepted = sheet.isGuarded;
            if (sheet.isGuarded)
                sheet.departureAsked();
        }
        Keys.onReturnPressed: sheet.submitted()

        Label {
            font: Typography.title
            text: sheet.title
            width: parent.width
            wrapMode: Text.Wrap
        }
    }
    enter: Transition {
        NumberAnimation {
            duration: Motion.normal
            easing.type: Motion.easing
            from: 0
            property: "opacity"
            to: 1
        }
    }
    exit: Transition {
        NumberAnimation {
            duration: Motion.quick
            property: "opacity"
            to: 0
        }
    }

    T.Overlay.modal: Rectangle {
        color: Colors.scrim
    }
}
