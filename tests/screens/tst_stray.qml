import QtQuick
import VORNELApp

/** Unsaved texts that no editor takes up. */
ScreenTest {
    name: "Stray"

    /** A library in whose trash two skills lie that have such texts. */
    function openOnTexts() {
        openShell(["audit", "notes", "plan"]);
        for (const slug of ["audit", "notes"])
            fixture.keep(slug, "brouillon de " + slug);
        fixture.trash(["audit", "notes"]);
        awaitText(/^Un texte de «\u00a0.*\u00a0» n’a pas été enregistré\./);
        settle();
    }

    function test_unsaved_texts_of_skills_that_are_gone() {
        openOnTexts();
        model.restore(fixture.trashedIdOf("notes"));
        settle();
        awaitText(/^Un texte de «\u00a0audit\u00a0» n’a pas été enregistré\..* Il est gardé ici\u00a0: .*\.json$/);
        click("Copier le texte");
        tryVerify(() => fixture.clipboard() === "brouillon de audit");
        fixture.emptyTrashElsewhere();
        model.reload();
        awaitText(/^Un texte d’une compétence supprimée n’a pas été enregistré\./);
        control("Plus tard").forceActiveFocus();
        press(Qt.Key_Escape);
        verify(!control("Plus tard").activeFocus && shows("Plus tard"), "Esc turns from the notice");
        click("Plus tard");
        awaitGone("Plus tard");

        close();
        fixture.restart();
        open();
        awaitText(/^Un texte d’une compétence supprimée/);
        clickUntil("Supprimer le texte", "Supprimer ce texte non enregistré\u00a0?");
        press(Qt.Key_Tab, Qt.Key_Return);
        awaitGone("Plus tard");
        compare(fixture.keptTexts(), ["brouillon de notes"]);
        selectSkill("notes", "Garder");
    }

    function test_only_the_text_that_was_asked_about_is_deleted() {
        openOnTexts();
        const asked = shows(/^Un texte de «\u00a0audit/) ? "audit" : "notes";
        click("Supprimer le texte");
        tryVerify(() => focusedName() === "Annuler");
        model.restore(fixture.trashedIdOf(asked));
        tryVerify(() => !shows(RegExp("^Un texte de «\u00a0" + asked)));
        press(Qt.Key_Tab, Qt.Key_Return);
        awaitGone("Annuler");
        fixture.keep("plan", "brouillon de plan"); // after whatever was to be deleted
        compare(fixture.keptTexts().length, 3);
    }

    function test_unsaved_text_of_a_skill_that_can_not_be_opened() {
        openShell(["audit"]);
        fixture.keep("audit", "brouillon");
        fixture.remove("workspace/skills/audit/SKILL.md");
        selectSkill("audit", /^Un texte de «\u00a0audit\u00a0» n’a pas été enregistré\. L’éditeur le reprendra dès que/);
        click("Copier le texte");
        tryVerify(() => fixture.clipboard() === "brouillon");
        fixture.write("workspace/skills/audit/SKILL.md", "name: audit");
        selectSkill("audit", "Garder");
        awaitGone("Copier le texte");
    }
}
