import VORNELApp

/** Asks for the identifier of a duplicate. */
SlugSheet {
    id: sheet

    /** What is saved of the skill is duplicated. */
    function ask(id: uuid, slug: string, name: string): void {
        duplication.begin(id, slug);
        title = "Dupliquer «\u00A0" + name + "\u00A0»";
        open();
    }

    acceptText: "Dupliquer"
    explanation: "Une nouvelle compétence est créée avec les mêmes fichiers, tels qu’ils sont enregistrés, et les mêmes propriétés. Elle est installée chez vos assistants."
    form: duplication

    DuplicationForm {
        id: duplication

        model: sheet.model
        onAccepted: sheet.close()
    }
}
