import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The import, over a library that is in use. */
Sheet {
    id: sheet

    required property AppModel model

    readonly property real panelHeight: Math.max(200, Math.min(520, parent.height - 280 - problem.height))

    firstFocus: panel
    implicitWidth: Math.min(900, parent.width - 2 * Metrics.page)
    isGuarded: model.isWorking
    title: "Importer des compétences"
    onAboutToShow: panel.scan()

    ImportPanel {
        id: panel

        acceptText: "Importer"
        canClose: true
        height: sheet.panelHeight
        model: sheet.model
        width: parent.width
        onClosed: sheet.close()
    }
    ErrorPanel {
        id: problem

        text: sheet.isUsed ? sheet.model.errorMessage : ""
        width: parent.width
        onDismissed: {
            sheet.model.clearError();
            panel.forceActiveFocus(Qt.OtherFocusReason);
        }
    }
}
