import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Finds in a text. Enter goes to the next place, Shift+Enter to the one before; Esc closes the bar. */
FocusScope {
    id: bar

    required property TextPane pane

    /** Which of the places is selected, from 1; 0 where none is. */
    readonly property int current: {
        void finder.count; // with the text, its places may change
        return finder.ordinal(pane.area.selectionStart, pane.area.selectionEnd);
    }

    function open(): void {
        const start = pane.area.selectionStart;
        if (pane.area.selectedText !== "")
            field.text = pane.area.selectedText;
        visible = true;
        field.forceActiveFocus(Qt.ShortcutFocusReason);
        field.selectAll();
        go(finder.next(start));
    }
    function close(): void {
        visible = false;
        pane.area.forceActiveFocus(Qt.ShortcutFocusReason);
    }
    function go(position: int): void {
        if (position >= 0)
            pane.area.select(position, position + field.text.length);
    }
    function goOn(): void {
        go(finder.next(pane.area.selectionEnd));
    }
    function goBack(): void {
        go(finder.previous(pane.area.selectionStart));
    }

    implicitHeight: Metrics.controlHeight + 2 * Metrics.small
    visible: false

    Keys.onEscapePressed: close()

    TextFinder {
        id: finder

        document: bar.pane.area.textDocument
        text: bar.visible ? field.text : ""
        onTextChanged: bar.go(next(bar.pane.area.selectionStart))
    }
    FoundMarks {
        anchors.fill: parent
        clip: true
        color: Qt.alpha(Colors.accent, 0.3)
        finder: finder
        origin: Qt.point(bar.pane.area.leftPadding, bar.pane.area.topPadding - bar.pane.contentY)
        parent: bar.pane
        visible: bar.visible
        z: -1 // behind the text
    }
    Rectangle {
        anchors.fill: parent
        color: Colors.raised
    }
    SearchField {
        id: field

        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        clearText: "Effacer"
        focus: true
        placeholderText: "Rechercher dans le texte"
        width: Math.min(320, bar.width / 2)

        Accessible.description: bar.current === 0 ? result.text : "Résultat " + bar.current + " sur " + finder.count
        Keys.onEscapePressed: bar.close()
        Keys.onEnterPressed: event => event.modifiers & Qt.ShiftModifier ? bar.goBack() : bar.goOn()
        Keys.onReturnPressed: event => event.modifiers & Qt.ShiftModifier ? bar.goBack() : bar.goOn()
    }
    Label {
        id: result

        anchors.left: field.right
        anchors.leftMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        color: finder.count === 0 ? Colors.warning : Colors.secondary
        font: Typography.small
        text: {
            if (finder.text === "")
                return "";
            if (finder.count === 0)
                return "Aucun résultat";
            if (bar.current > 0)
                return bar.current + " / " + finder.count;
            return finder.count === 1 ? "1 résultat" : finder.count + " résultats";
        }
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: Metrics.small
        anchors.verticalCenter: parent.verticalCenter

        ActionButton {
            isCompact: true
            symbol: "chevron-up"
            text: "Résultat précédent"
            onClicked: bar.goBack()
        }
        ActionButton {
            isCompact: true
            symbol: "chevron-down"
            text: "Résultat suivant"
            onClicked: bar.goOn()
        }
        ActionButton {
            isCompact: true
            symbol: "x"
            text: "Fermer la recherche"
            onClicked: bar.close()
        }
    }
}
