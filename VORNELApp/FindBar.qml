import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Finds in a text. Enter goes to the next place, Shift+Enter to the one before; Esc closes the bar. */
FocusScope {
    id: bar

    required property TextPane pane

    readonly property int hits: {
        void pane.area.length; // with the text, its places may change
        return visible ? finder.count(field.text) : 0;
    }

    function open(): void {
        visible = true;
        if (pane.area.selectedText !== "")
            field.text = pane.area.selectedText;
        field.forceActiveFocus(Qt.ShortcutFocusReason);
        field.selectAll();
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
        go(finder.next(field.text, pane.area.selectionEnd));
    }
    function goBack(): void {
        go(finder.previous(field.text, pane.area.selectionStart));
    }

    implicitHeight: Metrics.controlHeight + 2 * Metrics.small
    visible: false

    Keys.onEscapePressed: close()

    TextFinder {
        id: finder

        document: bar.pane.area.textDocument
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
        onTextEdited: bar.go(finder.next(text, bar.pane.area.selectionStart))

        Keys.onEscapePressed: bar.close()
        Keys.onReturnPressed: event => event.modifiers & Qt.ShiftModifier ? bar.goBack() : bar.goOn()
    }
    Label {
        anchors.left: field.right
        anchors.leftMargin: Metrics.medium
        anchors.verticalCenter: parent.verticalCenter
        color: bar.hits === 0 && field.text !== "" ? Colors.warning : Colors.secondary
        font: Typography.small
        text: field.text === "" ? "" : bar.hits === 0 ? "Aucun résultat" : bar.hits === 1 ? "1 résultat" : bar.hits + " résultats"
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
