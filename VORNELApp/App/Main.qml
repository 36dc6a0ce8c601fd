import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/**
 * The application's window, shown by whoever places it. Closing it waits for the running operation. If that fails,
 * the window stays, unless the program has to end.
 */
Window {
    id: window

    required property AppModel model

    property bool isClosing: false

    // What the content needs; a tiling window manager or a small screen may give the window less.
    readonly property int leastHeight: 620
    readonly property int leastWidth: 960

    color: Colors.canvas
    height: 800
    minimumHeight: leastHeight
    minimumWidth: leastWidth
    title: "VORNEL"
    width: 1240

    // For the file dialogs of Qt.
    palette {
        base: Colors.surface
        button: Colors.raised
        buttonText: Colors.text
        dark: Colors.line
        highlight: Colors.accent
        highlightedText: Colors.inkOnAccent
        light: Colors.raised
        mid: Colors.line
        midlight: Colors.hover
        placeholderText: Colors.muted
        text: Colors.text
        window: Colors.raised
        windowText: Colors.text
    }

    onActiveChanged: if (active) model.lookForChanges()

    onClosing: event => {
        if (model.departure.isGuarded) {
            event.accepted = false;
            model.departure.leave(Departure.FromWindow);
            return;
        }
        model.batch.stop();
        event.accepted = !model.isBusy;
        isClosing = model.isBusy;
    }

    Connections {
        function onIsBusyChanged() {
            if (!window.isClosing || window.model.isBusy)
                return;
            window.isClosing = false;
            if (window.model.errorMessage === "" || window.model.departure.isForced)
                window.close();
        }

        function onErrorMessageChanged() {
            room.contentY = Math.max(0, room.contentHeight - room.height); // to the message
        }

        target: window.model
    }
    Connections {
        function onLeft(exit: int) {
            if (exit === Departure.FromWindow)
                window.close();
        }

        target: window.model.departure
    }
    Flickable {
        id: room

        /** Scrolls to what has the keyboard where the window is too small to show everything. */
        function reveal(item: Item): void {
            const place = root.mapFromItem(item, 0, 0, item.width, item.height);
            contentX = Math.min(contentWidth - width, Math.max(place.right - width, Math.min(contentX, place.left)));
            contentY = Math.min(contentHeight - height, Math.max(place.bottom - height, Math.min(contentY, place.top)));
        }

        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        contentHeight: root.height
        contentWidth: root.width
        interactive: contentWidth > width || contentHeight > height // in a window that had to be smaller

        Window.onActiveFocusItemChanged: {
            const item = Window.activeFocusItem;
            if (interactive && root.activeFocus && item !== root)
                reveal(item);
        }

        T.ScrollBar.horizontal: ScrollRail {}
        T.ScrollBar.vertical: ScrollRail {}

        RootView {
            id: root

            enabled: !window.isClosing
            focus: true
            height: Math.max(window.height, window.leastHeight)
            model: window.model
            width: Math.max(window.width, window.leastWidth)
        }
    }
    DeferredItem {
        anchors.fill: parent
        file: "ClosingOverlay.qml"
        isWanted: window.isClosing
        properties: ({})
    }
}
