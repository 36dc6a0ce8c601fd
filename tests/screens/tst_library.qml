import QtQuick
import VORNELApp

ScreenTest {
    id: test

    name: "Library"

    function pageTop() {
        return findChild(root, "library-page-top");
    }
    function showsSkills(slugs) {
        tryVerify(() => ["audit", "notes", "plan", "revue"].every(slug => slugs.includes(slug) === shows(slug)), 5000, slugs.join());
    }

    function test_sections_and_filters() {
        openLibrary();
        verifyShown("TOUTES LES CATÉGORIES");
        verifyShown("Qualité", "Design", "Autre");
        verify(!shows("Développement"));
        compare(all("1 compétences").length, 2);
        for (const entry of ["Toutes, 4 compétences", "Développement, 0 compétences", "Qualité, 1 compétence"])
            verify(control(entry));
        compare(control("revue").Accessible.description, "revue, Qualité, Prêt, à jour");

        click("Qualité, 1 compétence");
        showsSkills(["revue"]);
        click("Qualité, 1 compétence");
        verify(control("Qualité, 1 compétence").checked, "a second click changes nothing");
        verify(!shows("TOUTES LES CATÉGORIES") && !control("Toutes, 4 compétences").checked);
        click("Toutes, 4 compétences");
        showsSkills(["audit", "notes", "plan", "revue"]);

        click("Filtrer par état", "Prêt");
        showsSkills(["revue"]);
        compare(control("Filtrer par état").Accessible.description, "Prêt");
        click("Filtrer par état", "Prêt");
        click("Filtrer par état");
        verify(control("Prêt").checked, "which choosing it again doesn't change");
        click("Tous les états");
        showsSkills(["audit", "notes", "plan", "revue"]);

        click("Filtrer par état", "Brouillon");
        click("Design, 1 compétence");
        model.searchText = "pla";
        showsSkills(["plan"]);
        click("Effacer les filtres");
        verify(!shows("Effacer les filtres"));
        compare(model.searchText, "pla");
        showsSkills(["plan"]);
    }

    function test_tags_errors_and_order() {
        openLibrary(); // two of its skills have no front matter
        fixture.create("zoo", "Zoo", "Résumé", "design", ["deux", "image"]);
        awaitText("deux, 3 compétences", "image, 1 compétence", "Compétences à corriger\u00a0: 2");

        control("Compétences à corriger\u00a0: 2").forceActiveFocus(Qt.TabFocusReason);
        press(Qt.Key_Right);
        compare(focusedName(), "deux, 3 compétences");
        press(Qt.Key_Space);
        awaitGone("audit");
        press(Qt.Key_End);
        compare(focusedName(), "image, 1 compétence");
        press(Qt.Key_Return);
        awaitGone("plan", /^quatre, /); // what would leave nothing isn't offered
        verify(shows("Zoo"));
        click("Effacer les filtres");

        click("Compétences à corriger\u00a0: 2");
        showsSkills(["audit", "notes"]);
        click("Compétences à corriger\u00a0: 2");

        const first = () => all(/^(audit|notes|plan|revue|Zoo)$/)[0].Accessible.name;
        tryVerify(() => first() === "revue");
        click("Trier", "Par nom");
        tryVerify(() => first() === "audit" && !shows("2 compétences"));
        click("deux, 3 compétences");
        close();
        fixture.restart();
        open();
        awaitText("Zoo");
        verify(control("deux, 3 compétences").checked && !shows("audit"), "the tags last");
        compare(control("Trier").Accessible.description, "Par nom");
    }

    function test_no_result() {
        openLibrary();
        model.searchText = "introuvable";
        awaitText("Aucun résultat");
        verify(!shows("Page suivante"));
        click("Opérations, 0 compétences", "Effacer la recherche");
        compare(model.searchText, "");
        awaitText("La catégorie «\u00a0Opérations\u00a0» est vide.");
        verify(control("Créer une compétence").enabled);
        clickUntil("Filtrer par état", "Maturité");
        clickUntil("Brouillon", "Aucune compétence ne correspond à ces critères.");
        click("Effacer les filtres");
        showsSkills(["audit", "notes", "plan", "revue"]);
    }

    function test_an_empty_library_imports_what_the_assistants_hold() {
        fixture.fillLibrary([]);
        fixture.write("claude/audit/SKILL.md", "un");
        fixture.write("codex/audit/SKILL.md", "deux");
        fixture.write("codex/notes/SKILL.md", "name: Notes");
        open();
        awaitText("Aucune compétence");
        verify(control("Créer une compétence").enabled && control("Toutes, 0 compétences"));
        click("Importer…");
        tryVerify(() => control("Claude").activeFocus);
        verify(!control("Importer").enabled);
        click("Fermer");
        awaitGone("Importer des compétences");
        tryVerify(() => control("Importer…").activeFocus);

        fixture.write("codex/plan/SKILL.md", "quatre");
        press(Qt.Key_Return, "2 COMPÉTENCES");
        tryVerify(() => control("Claude").activeFocus);
        press(Qt.Key_Space);
        tryVerify(() => control("Importer").enabled);
        fixture.write("codex/plan/SKILL.md", "cinq");
        click("Importer");
        tryVerify(() => shows(/plan a changé depuis le scan/));
        verify(shows("Importer des compétences"), "what is refused stays");
        click("Relancer l’analyse");
        tryVerify(() => control("Importer").enabled);
        click("Importer");
        awaitGone("Importer des compétences");
        awaitText("Notes", "PRÊT");
    }

    function test_pages() {
        openShell(numbered(25));
        awaitText("1 sur 2");
        verifyShown("25 compétences");
        verify(!control("Page précédente").enabled);
        press(Qt.Key_End);
        verify(pageTop().mapToItem(root, 0, 0).y < 0);
        clickUntil("Page suivante", "2 sur 2");
        tryVerify(() => shows("s25") && !shows("s01"));
        verify(pageTop().mapToItem(root, 0, 0).y > 0, "the page begins at its top");
        verifyShown("25 compétences");
        verify(!control("Page suivante").enabled);
        compare(focusedName(), "s25", "a button that is no use any more hands the keyboard on");
    }

    function test_selection() {
        openShell(numbered(25));
        clickUntil("Sélectionner", "0 sélectionnées");
        verify(!control("Déplacer").enabled && !control("Supprimer").enabled);
        clickUntil("s01", "1 sélectionnée");
        tryVerify(() => control("s01").Accessible.description === "s01, Autre, Actif, à jour, 1 erreur, sélectionnée");
        clickUntil("Tout sélectionner", "25 sélectionnées");
        clickUntil("Supprimer", "Placer 25 compétences dans la corbeille ?");
        cancel();
        clickUntil("Tout désélectionner", "0 sélectionnées");

        click("s01", "s02", "Déplacer", "Qualité");
        awaitText("CATÉGORIE MODIFIÉE");
        compare(categoryOf("s01") + categoryOf("s02") + categoryOf("s03"), "qualityqualityother");
        awaitText("2 sélectionnées");
        click("s02", "Supprimer");
        awaitText("Vous pourrez les restaurer depuis la corbeille.");
        clickUntil("Placer dans la corbeille", "CORBEILLE");
        tryVerify(() => !shows("s01") && !shows("Annuler"));
        compare(focusedName(), "s03", "the card that stands where the last one was chosen");

        click("Sélectionner", "s02", "Terminer la sélection");
        verify(!shows("1 sélectionnée"));
        clickUntil("s02", "Retour à la bibliothèque");
    }

    function test_keyboard() {
        openLibrary(); // three sections, of which the last holds two cards
        control("revue").forceActiveFocus();
        for (let stop = 0; stop < 12 && !focusedName().startsWith("Toutes"); ++stop)
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        press(Qt.Key_Down, Qt.Key_Down, Qt.Key_Return);
        compare(model.selectedCategory, "quality");
        model.selectedCategory = "";

        control("revue").forceActiveFocus();
        press(Qt.Key_Down);
        compare(focusedName(), "plan");
        press(Qt.Key_Down, Qt.Key_Right);
        compare(focusedName(), "notes");
        press(Qt.Key_Up);
        compare(focusedName(), "plan", "the last card of a shorter row");
        press(Qt.Key_Up);
        compare(focusedName(), "revue");
        press(Qt.Key_End, Qt.Key_Right);
        compare(focusedName(), "notes");
        press(Qt.Key_Left);
        compare(focusedName(), "audit");
        press(Qt.Key_Tab);
        verify(focusedName() !== "audit" && !shows(focusedName() + ","));
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        compare(focusedName(), "audit", "the grid is one stop of Tab");

        press(Qt.Key_Space, "1 sélectionnée", Qt.Key_Home, Qt.Key_Return, "2 sélectionnées");
        keyClick(Qt.Key_A, Qt.ControlModifier);
        awaitText("4 sélectionnées");
        press(Qt.Key_Delete, "Placer 4 compétences dans la corbeille ?", Qt.Key_Escape);
        awaitGone("Annuler");
        press(Qt.Key_Escape);
        verify(!shows("4 sélectionnées"));
        compare(focusedName(), "revue");

        model.searchText = "plan";
        compare(focusedName(), "plan");
        press(Qt.Key_Return);
        settle();
        compare(model.selectedSkill.manifest.slug, "plan");
    }

    function test_a_range_is_selected_and_what_a_search_hides_is_left_alone() {
        openLibrary();
        mouseClick(control("revue"), 20, 20, Qt.LeftButton, Qt.ControlModifier);
        awaitText("1 sélectionnée");
        mouseClick(control("notes"), 20, 20, Qt.LeftButton, Qt.ShiftModifier);
        awaitText("4 sélectionnées");
        verify(!model.isDetailLoading && String(model.selectedSkillID).includes("00000000"), "none was opened");
        model.searchText = "audit";
        awaitText("1 sélectionnée · 3 masquées");
        clickUntil("Supprimer", "Placer cette compétence dans la corbeille ?");
        accept();
        settle();
        awaitText("0 sélectionnées · 3 masquées");
        model.searchText = "";
        awaitText("3 sélectionnées");
        click("Terminer la sélection");
        control("revue").forceActiveFocus();
        compare(focusedName(), "revue");
        keyClick(Qt.Key_Down, Qt.ShiftModifier);
        compare(focusedName(), "plan");
        awaitText("2 sélectionnées");
        keyClick(Qt.Key_End, Qt.ShiftModifier);
        awaitText("3 sélectionnées");
    }

    function test_delete_takes_the_card_and_not_what_is_selected() {
        openLibrary();
        control("revue").forceActiveFocus();
        press(Qt.Key_Space, Qt.Key_Down);
        fixture.holdWorkspace();
        model.reload();
        verify(!control("Déplacer").enabled && !control("Supprimer").enabled);
        press(Qt.Key_Delete);
        verify(!shows("Annuler"), "nothing changes while something runs");
        fixture.releaseWorkspace();
        settle();
        verify(control("Supprimer").enabled);
        press(Qt.Key_Delete, "Placer cette compétence dans la corbeille ?");
        verify(all("plan").some(item => item.clicked === undefined), "the question names the skill");
        accept();
        settle();
        tryVerify(() => shows("revue") && !shows("plan"));
    }
}
