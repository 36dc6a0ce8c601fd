import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Taking the last action back, and bringing it back again: by mouse and keyboard, and no text of anyone is lost. */
EditorTest {
    id: test

    readonly property string undoName: "Annuler la dernière action (Ctrl+Z)"
    readonly property string redoName: "Rétablir la dernière action (Ctrl+Y)"

    name: "Undo"

    function edit(text) {
        typeAt(0, text);
    }

    function test_a_save_of_the_open_skill() {
        openSkill("un");
        edit("neuf ");
        save();
        verifyStored("neuf un");

        for (let stop = 0; stop < 40 && focusedName() !== undoName; ++stop)
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
        compare(focusedName(), undoName);
        wait(6500); // as long as it has the keyboard
        verifyShown("ENREGISTRÉE");
        press(Qt.Key_Return, "ANNULÉ\u00A0: ENREGISTREMENT");
        settle();
        verifyStored("un");
        compare(text(), "un");
        compare(model.selectedSkill.manifest.revision, 3);
        verify(focusedName() !== undoName, "the keyboard is back in the editor");
        awaitGone("ENREGISTRÉE");
        clickUntil(redoName, "RÉTABLI\u00A0: ENREGISTREMENT");
        settle();
        verifyStored("neuf un");
        compare(text(), "neuf un");
        verify(shows(undoName));
        undo(); // in the text, where it is the text's
        settle();
        compare(model.selectedSkill.manifest.revision, 4);
        verifyStored("neuf un");
    }

    function test_unsaved_edits_stay() {
        openSkill("un");
        edit("neuf ");
        save();
        edit("encore ");
        click(undoName);
        awaitText("ANNULÉ\u00A0: ENREGISTREMENT");
        settle();
        verifyStored("un");
        compare(text(), "encore neuf un");
        compare(model.openSkill.state, OpenSkill.Stale);
    }

    function test_outside_a_text_by_keyboard() {
        openShell(["audit", "notes", "plan"]);
        model.selectSkill(fixture.idOf("audit"));
        awaitText("INSTRUCTIONS");
        settle();
        moveToDesign();
        model.closeSkill();
        awaitText("Compétences");
        tryVerify(() => !shows(undoName), 7000);
        control("Bibliothèque").forceActiveFocus();
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        awaitText("ANNULÉ\u00A0: CATÉGORIE");
        settle();
        compare(categoryOf("audit"), "other");
        keyClick(Qt.Key_Z, Qt.ControlModifier); // once
        settle();
        compare(model.overview.skills.find(skill => skill.slug === "audit").revision, 3);
        keyClick(Qt.Key_Y, Qt.ControlModifier);
        awaitText("RÉTABLI\u00A0: CATÉGORIE");
        settle();
        compare(categoryOf("audit"), "design");
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        tryVerify(() => categoryOf("audit") === "other");
        settle();
        keyClick(Qt.Key_Z, Qt.ControlModifier | Qt.ShiftModifier);
        tryVerify(() => categoryOf("audit") === "design");
    }

    function test_a_move_to_the_trash() {
        openShell(["audit", "notes"]);
        model.selectSkill(fixture.idOf("audit"));
        awaitText("INSTRUCTIONS");
        settle();
        model.moveSelectedSkillToTrash();
        awaitText("CORBEILLE");
        settle();
        click(undoName);
        tryVerify(() => model.overview.skills.length === 2);
        settle();
        awaitText("audit");
        click(redoName);
        tryVerify(() => model.overview.trashedSkills.length === 1);
    }

    function test_an_unsaved_text_comes_back_from_the_trash() {
        openSkill("un");
        edit("neuf ");
        model.moveSelectedSkillToTrash();
        awaitText("CORBEILLE");
        settle();
        click(undoName);
        awaitText("ANNULÉ\u00A0: CORBEILLE");
        settle();
        selectSkill("audit", /^Texte non enregistré du .* retrouvé\.$/);
        compare(text(), "neuf un");
    }

    function test_an_assistants_edits_that_were_synchronised_over() {
        openSkill("un");
        fixture.write("codex/audit/SKILL.md", "de Codex");
        reload();
        model.synchronizeSelectedSkill();
        awaitText("À JOUR");
        settle();
        verifyStored("un");
        click(undoName);
        awaitText("Codex, copie modifiée");
        compare(fixture.bytes("codex/audit/SKILL.md"), fixture.bytesOfText("de Codex"));
    }

    function test_a_refusal_ends_the_offer() {
        openSkill("un");
        edit("neuf ");
        save();
        saveElsewhere("d’ailleurs");
        click(undoName);
        awaitText("Échec d’intégrité : «\u00A0audit\u00A0» a changé depuis\u00A0: il n’est plus possible de revenir en arrière.");
        awaitGone(undoName);
        verifyOnDisk("d’ailleurs");
    }

    function test_skills_that_are_ignored_end_the_offer() {
        openShell(["audit", "notes"]);
        fixture.write("claude/neuve/SKILL.md", "neuve");
        reload();
        awaitText("1 nouvelle compétence chez Claude");
        trash("audit");
        tryVerify(() => model.undoableStep !== "");
        click("Ignorer");
        tryVerify(() => model.undoableStep === "");
        awaitGone("1 nouvelle compétence chez Claude");
    }

    function test_what_can_not_be_taken_back_offers_nothing() {
        openShell(["audit"]);
        trash("audit");
        model.emptyTrash();
        awaitText("CORBEILLE VIDÉE");
        settle();
        tryVerify(() => !shows(undoName), 3000); // an offer stays for six seconds
        awaitGone("CORBEILLE VIDÉE");
    }
}
