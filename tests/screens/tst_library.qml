import QtQuick
import VORNELApp
import VORNELDesignSystem

ScreenTest {
    id: test

    name: "Library"

    function openLibrary() {
        fixture.fillLibrary(["audit", "notes"]);
        open();
        awaitText("Bibliothèque");
        settle();
        fixture.create("revue", "quality", Vornel.Maturity.ready);
        fixture.create("plan", "design", Vornel.Maturity.draft);
        settle();
        awaitText("2 compétences");
    }
    function openPages(count) {
        openShell(Array.from({ length: count }, (_, number) => "s" + String(number + 1).padStart(2, "0")));
    }
    function pageTop() {
        return findChild(root, "library-page-top");
    }
    function categoryOf(slug) {
        return model.overview.skills.find(skill => skill.slug === slug)?.category;
    }
    function showsSkills(slugs) {
        tryVerify(() => ["audit", "notes", "plan", "revue"].every(slug => slugs.includes(slug) === shows(slug)), 5000, slugs.join());
    }
    function choose(menu, entry) {
        click(menu);
        click(entry);
    }

    function test_sections_and_filters() {
        openLibrary();
        verify(shows("TOUTES LES CATÉGORIES"));
        for (const heading of ["Qualité", "Design", "Autre"])
            verify(shows(heading));
        verify(!shows("Développement"));
        compare(all("1 compétences").length, 2);
        for (const entry of ["Toutes, 4 compétences", "Développement, 0 compétences", "Qualité, 1 compétence"])
            verify(control(entry));
        compare(control("revue").Accessible.description, "revue, Qualité, Prêt, à jour");

        click("Qualité, 1 compétence");
        showsSkills(["revue"]);
        verify(!shows("TOUTES LES CATÉGORIES"));
        verify(control("Qualité, 1 compétence").checked && !control("Toutes, 4 compétences").checked);
        click("Qualité, 1 compétence");
        verify(control("Qualité, 1 compétence").checked, "a second click changes nothing");
        click("Toutes, 4 compétences");
        showsSkills(["audit", "notes", "plan", "revue"]);

        choose("Filtrer par état", "Prêt");
        showsSkills(["revue"]);
        compare(control("Filtrer par état").Accessible.description, "Prêt");
        choose("Filtrer par état", "Prêt");
        click("Filtrer par état");
        verify(control("Prêt").checked, "which choosing it again doesn't change");
        click("Tous les états");
        showsSkills(["audit", "notes", "plan", "revue"]);

        choose("Filtrer par état", "Brouillon");
        click("Design, 1 compétence");
        model.searchText = "pla";
        showsSkills(["plan"]);
        click("Effacer les filtres");
        verify(!shows("Effacer les filtres"));
        compare(model.searchText, "pla");
        showsSkills(["plan"]);
    }

    function test_no_result() {
        openLibrary();
        model.searchText = "introuvable";
        awaitText("Aucun résultat");
        verify(!shows("Page suivante"));
        click("Opérations, 0 compétences");
        click("Effacer la recherche");
        compare(model.searchText, "");
        awaitText("La catégorie «\u00a0Opérations\u00a0» est vide.");
        verify(control("Créer une compétence").enabled);
        click("Filtrer par état");
        awaitText("Maturité");
        click("Brouillon");
        awaitText("Aucune compétence ne correspond à ces critères.");
        click("Effacer les filtres");
        showsSkills(["audit", "notes", "plan", "revue"]);
    }

    function test_empty() {
        fixture.fillLibrary([]);
        open();
        awaitText("Aucune compétence");
        verify(control("Créer une compétence").enabled);
        verify(control("Toutes, 0 compétences"));
    }

    function test_an_empty_library_imports_what_the_assistants_hold() {
        fixture.fillLibrary([]);
        fixture.write("claude/audit/SKILL.md", "un");
        fixture.write("codex/audit/SKILL.md", "deux");
        fixture.write("codex/notes/SKILL.md", "name: Notes");
        open();
        click("Importer…");
        tryVerify(() => control("Claude").activeFocus);
        verify(!control("Importer").enabled);
        click("Fermer");
        tryVerify(() => !shows("Importer des compétences"));
        tryVerify(() => control("Importer…").activeFocus);

        fixture.write("codex/plan/SKILL.md", "quatre");
        keyClick(Qt.Key_Return);
        awaitText("2 COMPÉTENCES");
        tryVerify(() => control("Claude").activeFocus);
        keyClick(Qt.Key_Space);
        tryVerify(() => control("Importer").enabled);
        fixture.write("codex/plan/SKILL.md", "cinq");
        click("Importer");
        tryVerify(() => shows(/plan a changé depuis le scan/));
        verify(shows("Importer des compétences"), "what is refused stays");
        click("Relancer l’analyse");
        tryVerify(() => control("Importer").enabled);
        click("Importer");
        tryVerify(() => !shows("Importer des compétences"));
        awaitText("Notes");
        awaitText("PRÊT");
    }

    function test_pages() {
        openPages(25);
        awaitText("1 sur 2");
        verify(shows("25 compétences"));
        verify(!control("Page précédente").enabled);
        keyClick(Qt.Key_End);
        verify(pageTop().mapToItem(root, 0, 0).y < 0);
        click("Page suivante");
        awaitText("2 sur 2");
        tryVerify(() => shows("s25") && !shows("s01"));
        verify(pageTop().mapToItem(root, 0, 0).y > 0, "the page begins at its top");
        verify(shows("25 compétences"));
        verify(!control("Page suivante").enabled);
        compare(focusedName(), "s25", "a button that is no use any more hands the keyboard on");
        keyClick(Qt.Key_Delete);
        awaitText("Placer cette compétence dans la corbeille ?");
        verify(shows("Vous pourrez les restaurer depuis la corbeille."));
        click("Placer dans la corbeille");
        awaitText("CORBEILLE");
        awaitText("1 sur 1");
        verify(shows("s24"));
    }

    function test_selection() {
        openPages(25);
        click("Sélectionner");
        awaitText("0 sélectionnées");
        verify(!control("Déplacer").enabled && !control("Supprimer").enabled);
        click("s01");
        awaitText("1 sélectionnée");
        compare(control("s01").Accessible.description, "s01, Autre, Actif, à jour, sélectionnée");
        click("s02");
        awaitText("2 sélectionnées");
        click("s01");
        awaitText("1 sélectionnée");
        click("Tout sélectionner");
        awaitText("25 sélectionnées");
        click("Supprimer");
        awaitText("Placer 25 compétences dans la corbeille ?");
        cancel();
        click("Tout désélectionner");
        awaitText("0 sélectionnées");

        click("s01");
        click("s02");
        choose("Déplacer", "Qualité");
        awaitText("CATÉGORIE MODIFIÉE");
        compare(categoryOf("s01") + categoryOf("s02") + categoryOf("s03"), "qualityqualityother");
        awaitText("2 sélectionnées");
        click("s02");
        click("Supprimer");
        awaitText("Placer cette compétence dans la corbeille ?");
        click("Placer dans la corbeille");
        awaitText("CORBEILLE");
        tryVerify(() => !shows("s01") && !shows("Annuler"));
        compare(focusedName(), "s03", "the card that stands where the last one was chosen");

        click("Sélectionner");
        click("s02");
        click("Terminer la sélection");
        verify(!shows("1 sélectionnée"));
        click("s02");
        awaitText("Retour à la bibliothèque");
    }

    function test_keyboard() {
        openLibrary(); // three sections, of which the last holds two cards
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

        press(Qt.Key_Space);
        awaitText("1 sélectionnée");
        press(Qt.Key_Home, Qt.Key_Return);
        awaitText("2 sélectionnées");
        keyClick(Qt.Key_A, Qt.ControlModifier);
        awaitText("4 sélectionnées");
        press(Qt.Key_Delete);
        awaitText("Placer 4 compétences dans la corbeille ?");
        press(Qt.Key_Escape);
        tryVerify(() => !shows("Annuler"));
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
        click("Supprimer");
        awaitText("Placer cette compétence dans la corbeille ?");
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
        press(Qt.Key_Space, Qt.Key_Down, Qt.Key_Delete);
        awaitText("Placer cette compétence dans la corbeille ?");
        verify(all("plan").some(item => item.clicked === undefined), "the question names the skill");
        all("Placer dans la corbeille")[0].clicked();
        settle();
        tryVerify(() => shows("revue") && !shows("plan"));
    }

    function test_keyboard_in_the_rail() {
        openLibrary();
        control("revue").forceActiveFocus();
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        for (let tries = 0; tries < 12 && !focusedName().startsWith("Toutes"); ++tries)
            keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        compare(focusedName(), "Toutes, 4 compétences");
        press(Qt.Key_Down, Qt.Key_Down, Qt.Key_Return);
        compare(model.selectedCategory, "quality");
    }

    function test_nothing_changes_while_something_runs() {
        openLibrary();
        control("audit").forceActiveFocus();
        press(Qt.Key_Space);
        fixture.holdWorkspace();
        model.reload();
        verify(!control("Déplacer").enabled && !control("Supprimer").enabled);
        press(Qt.Key_Delete);
        verify(!shows("Annuler"));
        fixture.releaseWorkspace();
        settle();
        verify(control("Supprimer").enabled);
    }

    /** What a card says to those it is dragged to. The platform of the tests takes no drag any further. */
    function draggedText(slug, distances = [4, 20]) {
        const card = control(slug);
        const drag = findChild(root, "library-drag");
        drag.payload = "";
        pageTop().parent.parent.contentY = Math.max(0, card.y - 100);
        mousePress(card, 20, 20);
        for (const distance of distances)
            mouseMove(card, 20 + distance, 20 + distance, -1, Qt.LeftButton);
        tryVerify(() => drag.payload !== "");
        mouseRelease(card, 40, 40);
        compare(drag.Drag.mimeData["text/plain"], drag.payload);
        return drag.payload;
    }
    function drop(text, entry) {
        fixture.drop(control(entry), text);
        settle();
    }

    function test_drag_and_drop() {
        openLibrary();
        const ids = slugs => "vornel-skills:" + slugs.map(slug => String(fixture.idOf(slug)).replace(/[{}]/g, "").toUpperCase()).sort();
        compare(draggedText("audit"), ids(["audit"]));
        drop(draggedText("audit", [60]), "Opérations, 0 compétences"); // at once, faster than the list could follow
        awaitText("CATÉGORIE MODIFIÉE");
        compare(categoryOf("audit"), "operations");
        verify(!shows("Retour à la bibliothèque"), "a drag is no click");

        click("Sélectionner");
        for (const slug of ["audit", "notes", "plan"])
            click(slug);
        compare(draggedText("revue"), ids(["revue"]), "a card that isn't selected goes alone");
        compare(draggedText("notes"), ids(["audit", "notes", "plan"]));
        drop(draggedText("plan"), "Qualité, 1 compétence");
        for (const slug of ["audit", "notes", "plan", "revue"])
            compare(categoryOf(slug), "quality");
        verify(shows("3 sélectionnées"));
    }

    function test_the_label_of_a_drag_has_corners_without_a_compositor() {
        openLibrary();
        draggedText("audit");
        const drag = findChild(root, "library-drag");
        tryVerify(() => String(drag.Drag.imageSource) !== "");
        const capsule = Array.from(drag.children).find(item => item.grabToImage !== undefined && item.text !== undefined);
        let corners;
        capsule.grabToImage(({ image }) => corners = [
            fixture.pixel(image, 0, 0), fixture.pixel(image, capsule.width - 1, capsule.height - 1)
        ]);
        tryVerify(() => corners !== undefined);
        compare(corners, [Colors.line, Colors.line]);
    }

    function test_foreign_drops_change_nothing() {
        openLibrary();
        const audit = String(fixture.idOf("audit")).replace(/[{}]/g, "");
        for (const text of ["bonjour", "vornel-skills:", "vornel-skills:abc,,def", "autre-skills:" + audit])
            drop(text, "Design, 1 compétence");
        drop("vornel-skills:" + audit, "Toutes, 4 compétences");
        verify(!shows("CATÉGORIE MODIFIÉE"));
        compare(categoryOf("audit"), "other");

        const design = control("Design, 1 compétence");
        fixture.dragOver(design, "bonjour");
        verify(!design.isDropTarget);
        fixture.dragOver(design, "vornel-skills:" + audit);
        verify(design.isDropTarget);
        drop("vornel-skills:abc," + audit.toLowerCase(), "Design, 1 compétence");
        compare(categoryOf("audit"), "design", "what another program sends");
        verify(!control("Design, 2 compétences").isDropTarget);
    }
}
