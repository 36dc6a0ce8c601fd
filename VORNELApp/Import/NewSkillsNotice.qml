import VORNELApp
import VORNELDesignSystem

/** Tells of the skills that assistants have made since the last import, and offers to import or to ignore them. */
Notice {
    id: notice

    required property AppModel model
    required property NewSkills skills

    signal importAsked

    /** The user has dealt with it, or turns away from the notice. */
    signal decided

    text: skills.notice
    tone: Colors.accent
    Keys.onEscapePressed: decided()

    ActionButton {
        enabled: !notice.model.isWorking
        symbol: "download"
        text: "Importer…"
        onClicked: notice.importAsked()
    }
    ActionButton {
        text: "Ignorer"
        onClicked: {
            notice.skills.ignore();
            notice.decided();
        }
    }
}
