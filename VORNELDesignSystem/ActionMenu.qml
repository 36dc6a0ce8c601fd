import QtQuick
import QtQuick.Templates as T

/** A list of commands that opens below a button. */
T.Menu {
    id: menu

    property Item formerFocus

    implicitWidth: 240
    implicitHeight: contentHeight + topPadding + bottomPadding
    margins: Metrics.small
    overlap: 1
    padding: Metrics.tiny
    onAboutToShow: formerFocus = parent.Window.activeFocusItem
    onClosed: formerFocus?.forceActiveFocus(Qt.PopupFocusReason)

    background: Rectangle {
        border.color: Colors.line
        border.width: Metrics.hairline
        color: Colors.raised
        radius: Metrics.controlRadius
    }
    contentItem: ListView {
        clip: true
        currentIndex: menu.currentIndex
        implicitHeight: contentHeight
        interactive: contentHeight > height
        model: menu.contentModel
    }
    delegate: ActionMenuItem {}
}
