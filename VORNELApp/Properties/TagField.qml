import VORNELApp
import VORNELDesignSystem

/** Tags, with those of the library as suggestions. */
ChipField {
    id: field

    required property AppModel model

    /** Which tags aren't suggested, beside those of the field. */
    property var unwanted: []

    hint: "Ajouter un mot-clé"
    suggestions: library.tags

    TagSuggestions {
        id: library

        chosen: field.texts.concat(field.unwanted)
        model: field.model
        typed: field.typed
    }
}
