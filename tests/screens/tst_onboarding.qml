import QtQuick
import VORNELApp

ScreenTest {
    name: "Onboarding"

    function enterImportPage() {
        open();
        for (let page = 1; page <= 4; ++page) {
            awaitText("Étape " + page + " sur 5");
            click("Continuer");
        }
        awaitText("Étape 5 sur 5");
        settle();
    }

    function test_pages() {
        open();
        verifyShown("Ouverture d’VORNEL");
        const pages = [
            ["Tout au même\nendroit.", "Vos compétences restent organisées.", "BIBLIOTHÈQUE"],
            ["Trouvez ce qu’il\nvous faut.", "Une carte. Un rôle. Un état.", "REPÈRES"],
            ["Toujours\ndisponible.", "Vos assistants partagent la même version.", "À JOUR"],
            ["Rien ne\ndisparaît.", "Historique. Corbeille. Restauration.", "PROTÉGÉ"]
        ];
        for (const texts of pages) {
            awaitText(...texts, "VORNEL");
            click("Étape suivante");
        }
        awaitText("PRÉPARATION");
        verify(!control("Étape suivante").enabled);
        settle();
        tryVerify(() => focusedName() === "Ouvrir la bibliothèque", 1000, "both arrows were no use during the scan");
        clickUntil("Étape précédente", pages[3][0]);
    }

    function test_collision() {
        fixture.write("claude/audit/SKILL.md", "un");
        fixture.write("codex/audit/SKILL.md", "deux");
        fixture.write("claude/notes/SKILL.md", "---\nname: Notes\ndescription: >-\n  Prend des notes\n---\n");
        fixture.write("codex/vide/notes.md", "sans SKILL.md");
        enterImportPage();
        tryVerify(() => control("Claude").activeFocus);
        awaitText("1 COMPÉTENCES");
        verifyShown("1 DOUBLONS", "Reste 1 doublon à trancher.", "1 IGNORÉE");
        verify(!shows("Aucune collision"));
        verify(!shows("Prêt à commencer."));
        verify(!control("Ouvrir la bibliothèque").enabled);

        clickUntil("1 dossier ignoré", "vide, Codex, ne contient pas de fichier SKILL.md");

        compare(control("Claude").Accessible.description, "non sélectionné");
        click("Codex");
        tryCompare(control("Codex").Accessible, "description", "sélectionné");
        verify(control("Codex").activeFocus, "a choice keeps the keyboard");
        press(Qt.Key_Right);
        verify(shows("Étape 5 sur 5"), "an arrow between the choices turns no page");
        press(Qt.Key_Left);
        verify(control("Claude").activeFocus);
        compare(control("Claude").Accessible.description, "non sélectionné");
        awaitText("Prêt à commencer.");

        fixture.write("codex/plan/SKILL.md", "trois");
        fixture.write("claude/plan/SKILL.md", "quatre");
        clickUntil("Relancer l’analyse", "Reste 1 doublon à trancher.");
        all("Claude")[1].clicked();
        awaitText("Prêt à commencer.");
        fixture.write("claude/plan/SKILL.md", "cinq");
        clickUntil("Relancer l’analyse", "Reste 1 doublon à trancher.");
        compare(all("Codex").map(choice => choice.isChosen).slice(0, 2), [true, false], "between versions that are the same");
        all("Claude")[1].clicked();
        awaitText("Prêt à commencer.");
        clickUntil("Ouvrir la bibliothèque", "Bibliothèque", "PRÊT", "Notes");
        awaitText("«\u00a0Reprendre du SKILL.md\u00a0» corrigerait la description d’une nouvelle compétence.");

        close();
        fixture.restart();
        open();
        awaitText("Bibliothèque");
    }

    function test_both_versions_of_a_collision_are_compared() {
        fixture.write("claude/audit/SKILL.md", "titre\nun\n");
        fixture.write("claude/audit/notes.md", "seules");
        fixture.write("codex/audit/SKILL.md", "titre\ndeux\n");
        enterImportPage();
        tryVerify(() => control("Claude").activeFocus);
        press(Qt.Key_Left, Qt.Key_Left);
        verify(control("Comparer…").activeFocus, "the arrows lead there, and turn no page");
        press(Qt.Key_Return, "Les deux versions de «\u00a0audit\u00a0»", /^Claude(, le plus récent)?, 2 fichiers, 15\u00a0octets, modifié le /,
              "SKILL.md, différent", "notes.md, seulement chez Claude", "un", "deux");
        tryVerify(() => focusedName() === "SKILL.md, différent");
        press(Qt.Key_Down, "seules");
        verify(!shows("deux"));
        click("Garder Codex");
        awaitGone("Garder Codex");
        awaitText("Prêt à commencer.");
        verify(control("Codex").isChosen);
        tryVerify(() => focusedName() === "Comparer…");

        fixture.remove("claude/audit");
        press(Qt.Key_Return, /^Les deux versions n’ont pas pu être comparées\. Fichier ou dossier introuvable/);
        compare(control("Garder Codex").Accessible.description, "sélectionné");
        press(Qt.Key_Escape);
        awaitGone("Garder Codex");
    }

    function test_folders_of_others_are_replaced_only_when_told() {
        fixture.write("claude/audit/SKILL.md", "un");
        fixture.write("codex/audit/notes.txt", "à un autre");
        fixture.write("claude/fichier/SKILL.md", "un");
        fixture.write("codex/fichier", "à un autre");
        enterImportPage();
        awaitText("Les noms de 2 compétences à importer sont déjà pris.");
        tryVerify(() => all("Ouvrir le dossier").length === 2);
        const looks = all("Ouvrir le dossier");
        waitForItemPolished(looks[0].parent);
        mouseClick(looks.find(look => look.Accessible.description.endsWith("/codex/audit")));
        verify(fixture.openedFolder.endsWith("/codex/audit"));
        clickUntil("Ouvrir la bibliothèque", "L’import ne peut pas commencer");
        verify(!shows("Remplacer et importer"));
        press(Qt.Key_Return);
        awaitGone("L’import ne peut pas commencer");
        tryVerify(() => control("Ouvrir la bibliothèque").activeFocus);
        all("Ne pas importer")[1].forceActiveFocus(Qt.TabFocusReason);
        press(Qt.Key_Space, "1 dossier porte le nom d’une compétence à importer.");
        tryVerify(() => control("Ne pas importer").activeFocus);
        clickUntil("Ouvrir la bibliothèque", "Remplacer 1 dossier\u00a0?");
        press(Qt.Key_Escape);
        awaitGone("Remplacer et importer");
        tryVerify(() => control("Ouvrir la bibliothèque").activeFocus);
        compare(fixture.bytes("codex/audit/notes.txt"), fixture.bytesOfText("à un autre"));
        press(Qt.Key_Return);
        clickUntil("Remplacer et importer", "Bibliothèque");
    }

    function test_clicks_leave_the_collisions_in_place() {
        const slugs = Array.from({ length: 30 }, (_, number) => "doublon-" + (100 + number));
        for (const slug of slugs) {
            fixture.write(`claude/${slug}/SKILL.md`, "un");
            fixture.write(`codex/${slug}/SKILL.md`, "deux");
        }
        fixture.write("claude/seule/SKILL.md", "un");
        fixture.write("codex/seule/notes.txt", "à un autre");
        enterImportPage();
        awaitText("1 dossier porte le nom d’une compétence à importer.");
        let scroller = all("Claude")[0];
        while (scroller.contentY === undefined)
            scroller = scroller.parent;
        const middle = item => item.mapToItem(scroller, 0, item.height / 2).y;
        const isInView = item => middle(item) > 0 && middle(item) < scroller.height;

        for (let row = 0; row < 20; ++row) {
            const choice = all(row % 2 ? "Claude" : "Codex")[row];
            if (!isInView(choice))
                scroller.contentY += middle(choice) - 2; // where the edge cuts it
            const place = scroller.contentY;
            mouseClick(scroller, choice.mapToItem(scroller, 10, 0).x, Math.min(middle(choice) + 1, scroller.height - 1));
            compare(scroller.contentY, place);
            verify(choice.activeFocus);
        }
        settle();
        verify(middle(control("Ne pas importer")) > middle(all("Claude")[29]), "what a look finds moves no choice");
        compare(fixture.lookCount, 1, "choices change nothing there");
        for (let row = 0; row < 30; ++row) {
            compare(all("Claude")[row].isChosen, row < 20 && row % 2 === 1, slugs[row]);
            compare(all("Codex")[row].isChosen, row < 20 && row % 2 === 0, slugs[row]);
        }

        all("Comparer…")[0].forceActiveFocus(Qt.TabFocusReason);
        for (let stop = 0; stop < 90; ++stop) {
            const control = all(["Comparer…", "Claude", "Codex"][stop % 3])[Math.floor(stop / 3)];
            verify(control.activeFocus && isInView(control), "stop " + stop);
            press(Qt.Key_Tab);
        }
        scroller.contentY = 0;
        click("Tout garder de Codex");
        tryVerify(() => all("Codex").filter(choice => choice.isChosen).length === 30);
        compare(focusedName(), "Tout garder de Codex");
        all("Claude")[29].clicked();
        tryVerify(() => all("Codex").filter(choice => choice.isChosen).length === 29 && all("Claude")[29].isChosen);
    }

    function test_failed_scan_and_nothing_to_import() {
        open();
        awaitText("Étape 1 sur 5");
        fixture.remove("claude");
        fixture.write("claude", "un fichier à la place du dossier");
        for (let page = 1; page <= 4; ++page)
            click("Continuer");
        awaitText("Fermer");
        verify(!control("Ouvrir la bibliothèque").enabled);
        fixture.remove("claude");
        click("Relancer l’analyse");
        awaitText("Prêt à commencer.", "0 COMPÉTENCES", "0 DOUBLONS", "0 IGNORÉES", "Aucune collision");
        verify(!shows("Fermer"));
        clickUntil("Ouvrir la bibliothèque", "Aucune compétence");
    }

    function test_import_of_what_has_changed() {
        fixture.write("claude/audit/SKILL.md", "avant");
        enterImportPage();
        fixture.write("claude/audit/SKILL.md", "après");
        clickUntil("Ouvrir la bibliothèque", "Fermer");
        click("Relancer l’analyse");
        settle();
        verify(!shows("Fermer"));
        fixture.holdWorkspace(true);
        click("Ouvrir la bibliothèque");
        tryVerify(() => !control("Ouvrir la bibliothèque").enabled);
        awaitText("Import en cours");
        verify(!control("Étape précédente").enabled);
        press(Qt.Key_Left);
        compare(model.onboardingStep, AppStates.OnboardingStep.importSkills, "the page stays while something runs");
        fixture.releaseWorkspace();
        awaitText("Bibliothèque");
    }

    function test_failed_start() {
        fixture.write("workspace", "un fichier à la place du dossier");
        open();
        awaitText("VORNEL a rencontré un problème");
        verify(shows(model.phase.message));
        verifyShown("Indisponible");
        verify(control("Réessayer").activeFocus);
        click("Ouvrir le dossier");
        compare(fixture.openedFolder + "/workspace", fixture.path("workspace"));
        fixture.remove("workspace");
        clickUntil("Réessayer", "Étape 1 sur 5");
    }
}
