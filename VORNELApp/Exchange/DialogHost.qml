import QtQuick

/** Opens dialogs of the desktop, or those of Qt, after which the keyboard goes back to where it was. */
Item {
    id: host

    property Item formerFocus

    function show(dialog: var): void {
        formerFocus = Window.activeFocusItem;
        dialog.open();
    }
    function giveKeyboardBack(): void {
        formerFocus?.forceActiveFocus(Qt.PopupFocusReason);
    }
}
