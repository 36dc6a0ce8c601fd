import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A text pane from which texts are copied as they are, and into which Shift+Enter types a plain new line. */
TextPane {
    id: pane

    LongText {
        document: pane.area.textDocument
    }
    TextClipboard {
        id: clipboard

        document: pane.area.textDocument
    }

    area.Keys.onPressed: event => {
        const start = area.selectionStart;
        const end = area.selectionEnd;
        const isCut = event.matches(StandardKey.Cut) && !area.readOnly;
        if (isCut || event.matches(StandardKey.Copy)) {
            clipboard.copy(start, end);
            if (isCut)
                area.remove(start, end);
        } else if (event.matches(StandardKey.InsertLineSeparator) && !area.readOnly) {
            area.remove(start, end);
            area.insert(area.cursorPosition, "\n"); // where Qt would write a line separator, U+2028
        } else {
            return;
        }
        event.accepted = true;
    }
}
