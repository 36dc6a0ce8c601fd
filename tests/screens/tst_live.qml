import QtQuick
import VORNELApp

/** What others change shows by itself, and nothing that the user has before him moves. */
EditorTest {
    id: test

    name: "Live"

    function openWatching(slugs) {
        fixture.fillLibrary(slugs);
        fixture.restartWatching();
        open();
        awaitText("Compétences");
        settle();
    }
    /** How far what has the keyboard is below the top of the window. */
    function place() {
        return root.Window.activeFocusItem.mapToItem(root, 0, 0).y;
    }

    function test_the_library_stays_where_it_is() {
        openWatching(numbered(40).slice(0, 23));
        control("s01").forceActiveFocus();
        keyClick(Qt.Key_Space);
        press(Qt.Key_End, Qt.Key_Up);
        const name = focusedName(), top = place();
        verify(name !== "s01");
        press(Qt.Key_Menu);
        awaitText("Copier le chemin");
        fixture.createElsewhere("a-part", "quality");
        fixture.write("claude/neuve/SKILL.md", "name: neuve");
        awaitText("a-part", "1 nouvelle compétence chez Claude");
        settle();
        verifyShown("Copier le chemin", "1 sélectionnée");
        press(Qt.Key_Escape);
        awaitGone("Copier le chemin");
        compare(focusedName(), name, "the keyboard follows the skill");
        fuzzyCompare(place(), top, 1);
        verify(control("s01").record.isSelected && !control("a-part").record.isSelected);

        fixture.write("claude/s01/SKILL.md", "édité");
        awaitText("Attention requise");
        tryVerify(() => control("s01").Accessible.description.includes("copie modifiée"));
        compare(focusedName(), name);
        fuzzyCompare(place(), top, 1);
        compare(model.errorMessage + model.transientMessage, "");
    }

    function test_rows_stay_where_they_are() {
        const slugs = numbered(30);
        openWatching(slugs);
        removeCopies(slugs.slice(1));
        clickUntil("À réparer", "29 compétences");
        settle();
        const rows = list("À réparer");
        rows.forceActiveFocus();
        press(Qt.Key_End, Qt.Key_Up, Qt.Key_Up);
        const name = focusedName(), top = place();
        compare(name, "s28");
        removeCopies(["s01"]);
        awaitText("30 compétences");
        settle();
        compare(focusedName(), name);
        fuzzyCompare(place(), top, 1);
    }

    function test_a_draft_and_a_sheet_stay_as_they_are() {
        fixture.fillLibrary(["audit", "notes"]);
        writeEverywhere("SKILL.md", "texte");
        fixture.restartWatching();
        showSkill();
        typeAt(2, "a");
        fixture.write("codex/audit/SKILL.md", "édité");
        awaitText("Attention requise", "Codex, copie modifiée");
        settle();
        type("b");
        compare(text(), "teabxte");
        verifyShown("MODIFIÉ");
        undo();
        undo();
        tryVerify(() => !shows("MODIFIÉ"));

        keyClick(Qt.Key_N, Qt.ControlModifier);
        tryVerify(() => focusedName() === "Nom");
        type("neu");
        fixture.write("claude/autre/SKILL.md", "name: autre");
        awaitText("1 nouvelle compétence chez Claude");
        settle();
        type("ve");
        compare(control("Nom").text, "neuve");
    }
}
