import VORNELApp
import VORNELDesignSystem

/** Offers to take the names and descriptions of the skills just imported from their texts, where they say otherwise. */
Notice {
    id: notice

    required property AppModel model

    /** The user has dealt with it, or turns away from the notice. */
    signal decided

    text: model.importedTexts.notice
    tone: Colors.accent
    Keys.onEscapePressed: decided()

    ActionButton {
        enabled: !notice.model.isWorking
        symbol: "file-text"
        text: "Reprendre…"
        onClicked: {
            offered.holdThese(notice.model.importedTexts.ids());
            sheet.ask();
        }
    }
    ActionButton {
        text: "Ignorer"
        onClicked: {
            notice.model.importedTexts.dismiss();
            notice.decided();
        }
    }
    SkillSelection {
        id: offered

        model: notice.model
    }
    SelectionPropertiesSheet {
        id: sheet

        firstFocus: acceptButton
        isFromText: true
        model: notice.model
        selection: offered
        onClosed: notice.decided()
    }
}
