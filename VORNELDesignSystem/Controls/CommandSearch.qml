import QtQuick
import QtQuick.Templates as T

/** Finds the commands of a menu by the letters they begin with, typed without a pause; accents and case don't matter. */
Item {
    id: search

    required property T.Menu menu

    property string letters

    function plain(text: string): string {
        return text.normalize("NFD").replace(/[\u0300-\u036F]/g, "").toLowerCase();
    }

    /** Goes to the command that what was typed leads to; false where none begins so. */
    function take(typed: string): bool {
        if (typed === "")
            return false;
        if (goTo(letters + typed, letters === "" ? 1 : 0))
            letters += typed;
        else
            letters = goTo(typed, 1) ? typed : "";
        pause.restart();
        return letters !== "";
    }

    /** The same for these letters, beginning so many commands behind the current one. */
    function goTo(beginning: string, distance: int): bool {
        const first = Math.max(menu.currentIndex + distance, 0);
        for (let index = first; index < first + menu.count; ++index) {
            const command = menu.itemAt(index % menu.count) as ActionMenuItem;
            if (!command?.enabled || !plain(command.text).startsWith(plain(beginning)))
                continue;
            menu.currentIndex = index % menu.count;
            return true;
        }
        return false;
    }

    Keys.onPressed: event => {
        const isCommand = event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier);
        event.accepted = !isCommand && take(event.text);
    }

    Connections {
        target: search.menu

        function onAboutToShow(): void {
            search.letters = "";
        }
    }
    Timer {
        id: pause

        interval: 1000
        onTriggered: search.letters = ""
    }
}
