import QtQuick

/** Asks for any colour, beginning with one of six hexadecimal digits. */
Sheet {
    id: sheet

    signal chosen(colorHex: string)

    function choose(): void {
        if (!picker.isValid)
            return;
        close();
        chosen(picker.colorHex);
    }
    function begin(colorHex: string): void {
        picker.show(colorHex);
        open();
    }

    firstFocus: picker
    implicitWidth: Math.min(440, parent.width - 2 * Metrics.page)
    onSubmitted: choose()

    ColorPicker {
        id: picker

        width: parent.width
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium

        ActionButton {
            text: "Annuler"
            onClicked: sheet.close()
        }
        ActionButton {
            enabled: picker.isValid
            role: ActionButton.Primary
            text: "Choisir"
            onClicked: sheet.choose()
        }
    }
}
