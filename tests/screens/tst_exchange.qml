import QtQuick
import VORNELApp

/** Skills that come from elsewhere, and leave for elsewhere. */
ScreenTest {
    id: test

    name: "Exchange"

    function addressOf(below) {
        return "file://" + fixture.path(below);
    }
    function give(slug, text) {
        fixture.write("given/" + slug + "/SKILL.md", text);
    }
    function drop(...addresses) {
        fixture.drop(control("audit"), addresses);
    }
    function awaitFocus(name) {
        tryVerify(() => focusedName() === name, 5000, name);
    }
    function textOf(slug) {
        return fixture.bytes("workspace/skills/" + slug + "/SKILL.md");
    }
    function verifyTextIs(slug, text) {
        compare(textOf(slug), fixture.bytesOfText(text), slug);
    }

    function test_what_is_dropped_is_added() {
        openShell(["audit"]);
        give("notes", "name: notes");
        give("plan", "name: plan");
        fixture.dragOver(control("audit"), [addressOf("given/notes"), addressOf("given/plan")]);
        awaitText("Déposer pour ajouter ces 2 éléments");
        model.selectedCategory = "design"; // where nothing is
        fixture.drop(control("Toutes, 1 compétence"), [addressOf("given/notes"), addressOf("given/plan")]);
        awaitText("2 compétences seront ajoutées.");
        verify(!shows("Déposer pour ajouter ces 2 éléments"));
        awaitFocus("Ajouter");
        press(Qt.Key_Return, "2 AJOUTÉES");
        awaitGone("Ajouter des compétences");
        awaitText("audit", "notes", "plan"); // whatever the filter was
        verifyTextIs("plan", "name: plan");

        drop(addressOf("given"));
        awaitText("La bibliothèque reste telle quelle\u00A0: il n’y a rien à ajouter.");
        awaitFocus("Annuler");
        press(Qt.Key_Escape);
        awaitGone("Ajouter des compétences");
    }

    function test_the_user_decides_where_contents_differ() {
        openShell(["audit", "revue"]);
        give("audit", "un autre audit");
        give("revue", "une autre revue");
        const plan = "---\nname: plan\ndescription: >-\n  Un plan\n---\n";
        give("plan", plan);
        fixture.write("codex/audit/SKILL.md", "ce que Codex a écrit");
        fixture.write("claude/plan/brouillon.txt", "à garder");
        drop(addressOf("given"));
        awaitText("Restent 2 différences à trancher.", "1 dossier porte le nom d’une compétence à ajouter.");
        awaitFocus("Garder la mienne");
        verify(!control("Remplacer et ajouter").enabled);
        click("Tout garder");
        awaitText("1 compétence sera ajoutée.");
        all("Prendre la nouvelle")[0].forceActiveFocus();
        press(Qt.Key_Space, "1 compétence sera ajoutée, 1 recevra une nouvelle révision.",
              "1 copie modifiée par un assistant serait remplacée, et gardée dans l’historique.");
        click("Relancer l’analyse");
        awaitText("1 compétence sera ajoutée, 1 recevra une nouvelle révision.");
        click("Remplacer et ajouter");
        awaitText("AJOUTÉE, NOUVELLE RÉVISION");
        awaitGone("Ajouter des compétences");
        verifyTextIs("audit", "un autre audit");
        verifyTextIs("revue", "name: revue");
        verifyTextIs("plan", plan);
        awaitText("«\u00a0Reprendre du SKILL.md\u00a0» corrigerait la description d’une nouvelle compétence.");
        compare(fixture.bytes("codex/audit/SKILL.md"), fixture.bytesOfText("un autre audit"));
        verify(fixture.history("audit").includes("ce que Codex a écrit"));
    }

    function test_both_contents_are_seen_before_one_is_kept() {
        openShell(["audit"]);
        give("audit", "name: audit\ndu nouveau");
        fixture.write("given/audit/guide.md", "le guide");
        drop(addressOf("given"));
        awaitText("Reste 1 différence à trancher.");
        const row = control("Prendre la nouvelle");
        click("Comparer…");
        awaitText("Les deux contenus de «\u00A0audit\u00A0»", /^SKILL.md, /, /^guide.md, /, "du nouveau");
        mouseClick(all(/^guide.md, /)[0]);
        awaitText("le guide");
        all("Prendre la nouvelle").find(item => item !== row).forceActiveFocus();
        press(Qt.Key_Space);
        awaitGone("Les deux contenus de «\u00A0audit\u00A0»");
        awaitText("1 compétence recevra une nouvelle révision.");
    }

    function test_a_failure_is_told_where_it_is_mended() {
        openShell(["audit"]);
        fixture.write("given.zip", "pas une archive");
        drop(addressOf("given.zip"));
        awaitText("Rien n’est ajouté", /given\.zip/);
        awaitFocus("Relancer l’analyse");
        verify(!control("Ajouter").enabled);
        fixture.remove("given.zip");
        fixture.write("given.zip/notes/SKILL.md", "des notes"); // a folder now
        press(Qt.Key_Return, "1 compétence sera ajoutée.");
        give("autre", "sans importance");
        fixture.write("given.zip/notes/SKILL.md", "d’autres notes");
        awaitFocus("Ajouter");
        press(Qt.Key_Return, /Ce qui est à ajouter a changé depuis l’examen/);
        compare(fixture.idOf("notes"), fixture.idOf("inconnue"));
        click("Relancer l’analyse");
        awaitGone(/a changé depuis l’examen/);
        click("Ajouter");
        awaitText("AJOUTÉE");
        verifyTextIs("notes", "d’autres notes");
    }

    function test_only_what_is_on_this_machine_is_taken() {
        openShell(["audit"]);
        for (const address of ["https://exemple.fr/archive.zip", "file://serveur/archive.zip"]) {
            fixture.dragOver(control("audit"), [addressOf("given"), address]);
            awaitText("Ceci ne peut pas être ajouté");
            drop(addressOf("given"), address);
            awaitGone("Ceci ne peut pas être ajouté");
            compare(model.errorMessage, "Seuls des dossiers et des archives qui se trouvent sur cet ordinateur peuvent être ajoutés.");
            model.clearError();
            verify(!shows("Ajouter des compétences"));
        }
    }

    function test_an_export_replaces_no_file() {
        openShell(["audit", "notes"]);
        fixture.write("audit.zip", "à garder");
        keyClick(Qt.Key_A, Qt.ControlModifier);
        awaitText("2 sélectionnées");
        click("Exporter…");
        tryVerify(() => model.skillExport.proposedName === "skills.zip");
        press(Qt.Key_Escape);
        model.skillExport.write(addressOf("audit"));
        awaitText("«\u00A0audit.zip\u00A0» existe déjà");
        accept("L’archive est écrite", fixture.path("audit (2).zip"), /^2 compétences, /);
        compare(fixture.bytes("audit.zip"), fixture.bytesOfText("à garder"));
        click("Ouvrir le dossier");
        compare(fixture.openedFolder, fixture.path(""));
        awaitGone("L’archive est écrite");
        drop(addressOf("audit (2).zip"));
        awaitText("La bibliothèque reste telle quelle\u00A0: il n’y a rien à ajouter.");
    }

    function test_the_menu_is_there_for_the_keyboard() {
        openShell(["audit"]);
        keyClick(Qt.Key_O, Qt.ControlModifier);
        awaitText("Un dossier…", "Des archives…");
        press(Qt.Key_Escape);
        awaitGone("Un dossier…");
        trash("audit");
        awaitText("Aucune compétence");
        compare(all("Ajouter…").length, 2, "in the empty library, too");
    }
}
