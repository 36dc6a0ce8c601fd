import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

ScreenTest {
    name: "Shell"

    function test_a_failed_reading_leaves_nothing_green() {
        openShell(["audit", "notes"]);
        fixture.remove("workspace/skills/notes/vornel.json");
        clickUntil("Actualiser", "Lecture impossible");
        verify(model.errorMessage.includes("Compétence concernée\u00A0: «\u00A0notes\u00A0»"));
        tryVerify(() => control("audit").Accessible.description.includes("inconnu"));
        clickUntil("À réparer", "L’état des copies n’est pas connu. «\u00a0Actualiser\u00a0» (F5) relit les dossiers.");
        verify(!shows("Tout est synchronisé"));
        click("Bibliothèque");
        fixture.remove("workspace/skills/notes");
        clickUntil("Actualiser", "Tout est à jour");
        tryVerify(() => control("audit").Accessible.description.includes("à jour"));
    }

    function test_new_skills_of_assistants() {
        openShell(["audit"]);
        verify(!shows("Ignorer"));
        fixture.write("claude/plan/SKILL.md", "name: Plan");
        fixture.write("codex/revue/SKILL.md", "name: Revue");
        reload();
        awaitText("1 nouvelle compétence chez Claude et 1 chez Codex");
        control("Ignorer").forceActiveFocus();
        press(Qt.Key_Escape);
        tryVerify(() => focusedName() === "audit", 1000, "Esc turns from the notice");
        verify(shows("Ignorer"));

        clickUntil("Importer…", "Importer des compétences", "2 COMPÉTENCES");
        tryVerify(() => focusedName() === "Importer");
        press(Qt.Key_Escape);
        awaitGone("Importer des compétences");
        verify(control("Importer…").activeFocus);
        press(Qt.Key_Return, "Importer des compétences", "2 COMPÉTENCES");
        tryVerify(() => focusedName() === "Importer");
        press(Qt.Key_Return);
        awaitGone("Importer des compétences", "Ignorer");
        awaitText("Plan", "Revue");
        tryVerify(() => ["audit", "Plan", "Revue"].includes(focusedName()), 1000, "the keyboard goes back to the list");

        trash("plan");
        fixture.write("claude/plan/SKILL.md", "name: Plan");
        reload();
        awaitText("1 nouvelle compétence chez Claude. «\u00a0plan\u00a0» est dans la corbeille.");
        control("Ignorer").forceActiveFocus();
        press(Qt.Key_Return);
        awaitGone("Ignorer");
        tryVerify(() => ["audit", "Revue"].includes(focusedName()));
        reload();
        wait(100);
        verify(!shows("Ignorer"));
    }

    function isInLibrary() {
        return all("Compétences").some(item => item.activeFocus);
    }
    function importAll(count) {
        reload();
        clickUntil("Importer…", "Importer des compétences", count + " COMPÉTENCES");
        tryVerify(() => focusedName() === "Importer");
        press(Qt.Key_Return);
        awaitGone("Importer des compétences");
    }

    function test_texts_that_say_more_than_the_import_has_read() {
        const offer = rest => "«\u00a0Reprendre du SKILL.md\u00a0» corrigerait " + rest;
        openShell(["audit"]);
        fixture.write("claude/plan/SKILL.md", "---\nname: 'Plan'\ndescription: >-\n  Prépare\n  tout\n---\n");
        fixture.write("codex/revue/SKILL.md", "---\nname: revue\ndescription: \"Relit\"\n---\n");
        fixture.write("codex/juste/SKILL.md", "---\nname: juste\ndescription: Relit\n---\n");
        importAll(3);
        const both = offer("le nom ou la description de 2 nouvelles compétences.");
        awaitText(both);
        control("Reprendre…").forceActiveFocus();
        press(Qt.Key_Escape);
        tryVerify(isInLibrary, 1000, "Esc turns from the notice");

        control("Reprendre…").forceActiveFocus();
        press(Qt.Key_Return, "Propriétés de 2 compétences");
        awaitText("plan\u00a0: nom «\u00a0'Plan'\u00a0» → «\u00a0Plan\u00a0», description «\u00a0>-\u00a0» → «\u00a0Prépare tout\u00a0»\n"
                  + "revue\u00a0: description «\u00a0\"Relit\"\u00a0» → «\u00a0Relit\u00a0»");
        tryVerify(() => focusedName() === "Modifier 2 compétences");
        press(Qt.Key_Return, "PROPRIÉTÉS MODIFIÉES");
        awaitGone("Propriétés de 2 compétences", both);
        tryVerify(isInLibrary);
        compare(model.overview.skills.map(skill => skill.summary).sort(), ["", "Prépare tout", "Relit", "Relit"]);

        fixture.write("claude/autre/SKILL.md", "---\nname: autre\ndescription: 'Une autre'\n---\n");
        importAll(1);
        const other = offer("la description d’une nouvelle compétence.");
        awaitText(other);
        reload();
        verify(shows(other));
        click("Ignorer");
        awaitGone(other);
        tryVerify(isInLibrary);
        reload();
        wait(100);
        verify(!shows(other), "it is offered once");
    }

    function test_destinations_and_a_skill() {
        openShell(["audit", "notes"]);
        verifyShown("VORNEL", "Tout est à jour");
        verify(!control("Synchroniser").enabled);
        fixture.holdWorkspace();
        clickUntil("notes", "OUVERTURE", "Ouverture de la compétence");
        fixture.releaseWorkspace();
        awaitText("Retour à la bibliothèque");
        verify(!shows("OUVERTURE"));
        press(Qt.Key_Escape, "audit");

        model.restore(fixture.idOf("audit"));
        settle();
        awaitText(model.errorMessage);
        control("Fermer").forceActiveFocus();
        press(Qt.Key_Return);
        verify(model.errorMessage === "" && !shows("Fermer"));
        verify(all("notes").some(item => item.activeFocus), "the keyboard goes back to the list");

        fixture.remove("codex/audit");
        clickUntil("Actualiser", "Attention requise");
        click("À réparer");
        tryVerify(() => shows("audit") && !shows("notes"));
        verify(control("À réparer").checked);
        press(Qt.Key_Down);
        verify(control("Corbeille").activeFocus);
        press(Qt.Key_Return, "La corbeille est vide");

        click("Bibliothèque");
        fixture.holdWorkspace();
        model.selectSkill(fixture.idOf("audit"));
        click("Corbeille");
        fixture.releaseWorkspace();
        settle();
        verify(!shows("Retour à la bibliothèque"), "a skill that is left while it loads doesn't open");
        verifyShown("La corbeille est vide");
    }

    function test_search() {
        openShell(["audit", "notes"]);
        keyClick(Qt.Key_F, Qt.ControlModifier);
        const field = control("Rechercher une compétence");
        verify(field.activeFocus);
        for (const letter of "NOT")
            keyClick(letter);
        compare(model.searchText, "NOT");
        tryVerify(() => shows("notes") && !shows("audit"));
        keyClick("x");
        awaitText("Aucun résultat");
        click("Effacer");
        compare(model.searchText, "");
        awaitText("audit");
        verify(!shows("Effacer"));
        model.searchText = "aud";
        compare(field.text, "aud", "the field follows the model");
        press(Qt.Key_Escape);
        compare(model.searchText, "");

        type("aud");
        selectSkill("audit", "INSTRUCTIONS");
        verify(!shows("Rechercher une compétence"), "a skill has a search of its own");
        verify(control("Instructions de la compétence").activeFocus);
        press(Qt.Key_Escape, "audit");
        compare(model.searchText, "aud", "the list is as it was left");
        trash("notes");
        clickUntil("Corbeille", "notes");
        verifyShown("Rechercher dans la corbeille");
        clickUntil("À réparer", "Rechercher dans «\u00a0À réparer\u00a0»");
    }

    function test_the_keyboard_goes_from_the_search_to_its_results_and_back() {
        openShell(["audit", "notes", "plan"]);
        function enter(key, name) {
            keyClick(Qt.Key_F, Qt.ControlModifier);
            const field = root.Window.activeFocusItem;
            press(key);
            compare(focusedName(), name);
            press(Qt.Key_Up);
            verify(field.activeFocus);
            press(key);
        }
        enter(Qt.Key_Down, "audit");
        press(Qt.Key_End);
        enter(Qt.Key_Return, "audit");
        keyClick(Qt.Key_F, Qt.ControlModifier);
        type("plan");
        press(Qt.Key_Return);
        compare(focusedName(), "plan");
        keyClick(Qt.Key_F, Qt.ControlModifier);
        type("introuvable");
        press(Qt.Key_Down);
        verify(control("Rechercher une compétence").activeFocus, "there is nothing to go to");

        removeCopies(["audit", "plan"]);
        fixture.trash(["notes"]);
        reload();
        clickUntil("À réparer", "plan");
        list("À réparer").moveTo(1);
        enter(Qt.Key_Down, "audit");
        clickUntil("Corbeille", "notes");
        enter(Qt.Key_Enter, "notes");
    }

    function test_confirmations() {
        openShell(["audit"]);
        model.emptyTrash();
        tryVerify(() => all("CORBEILLE VIDÉE").length === 1);
        const first = Date.now();
        wait(1650); // so that the first leaves while the second still comes
        model.emptyTrash();
        tryVerify(() => all("CORBEILLE VIDÉE").length === 2);
        const second = Date.now();
        tryVerify(() => all("CORBEILLE VIDÉE").length === 1, 3000);
        fuzzyCompare(Date.now() - first, 1800 + 220, 300);
        tryCompare(all("CORBEILLE VIDÉE")[0], "opacity", 1, 500);
        compare(model.transientMessage, "CORBEILLE VIDÉE");
        tryVerify(() => all("CORBEILLE VIDÉE").length === 0, 3000);
        fuzzyCompare(Date.now() - second, 1800 + 220, 300);
        compare(model.transientMessage, "");
    }

    /** The area of an item in the window. */
    function area(item) {
        return item.mapToItem(null, Qt.rect(0, 0, item.width, item.height));
    }
    function test_confirmations_stand_clear_and_above_sheets() {
        openShell(["audit", "notes", "plan"]);
        root.width = 960;
        root.height = 620;
        for (const name of ["Corbeille", "Bibliothèque", "audit", "Gérer les catégories"]) {
            if (name === "Gérer les catégories")
                model.closeSkill();
            click(name);
            settle();
            model.emptyTrash();
            awaitText("CORBEILLE VIDÉE");
            wait(Motion.normal); // in which it comes
            const capsule = area(all("CORBEILLE VIDÉE")[0]);
            const covered = all(/./).filter(item => item.text !== undefined && item.text !== "CORBEILLE VIDÉE").filter(item => {
                const other = area(item);
                return other.left < capsule.right && capsule.left < other.right && other.top < capsule.bottom && capsule.top < other.bottom;
            });
            compare(covered.map(item => item.text).join(), "", name);
            if (name === "Gérer les catégories") {
                const dot = grabImage(root.Window.contentItem).pixel(capsule.x + Metrics.medium + 4, capsule.y + capsule.height / 2);
                compare(String(dot), String(Colors.success));
            }
            awaitGone("CORBEILLE VIDÉE");
        }
    }

    function test_no_hint_comes_over_a_menu() {
        openShell(["audit"]);
        root.width = 960;
        const filter = control("Filtrer par état");
        const hints = () => Array.from(T.Overlay.overlay.children).filter(popup => popup.visible && Array.from(popup.children).some(item => item.text === filter.name));
        waitForItemPolished(filter.parent);
        mouseMove(filter, 10, 10);
        mouseMove(filter, 12, 12);
        tryVerify(() => hints().length === 1);
        mouseMove(root, 480, 300);
        tryVerify(() => hints().length === 0);
        mouseMove(filter, 12, 12); // and a click before the hint comes
        clickUntil("Filtrer par état", "Tous les états");
        wait(800);
        compare(hints().length, 0);
        press(Qt.Key_Escape);
    }
}
