import QtQuick
import VORNELApp

ScreenTest {
    id: test

    name: "Attention"

    function edit(slug) {
        fixture.write("codex/" + slug + "/SKILL.md", "retouché par l’assistant");
    }
    /** One copy that was edited, and one that can neither be read nor replaced. */
    function spoil(slug) {
        fixture.write("claude/" + slug + "/SKILL.md", "retouché");
        block("codex/" + slug);
    }
    /** Files in the place of copies, which no synchronisation replaces. */
    function block(...copies) {
        for (const copy of copies) {
            fixture.remove(copy);
            fixture.write(copy, "pas un dossier");
        }
    }
    function openAttention() {
        reload();
        model.selectedDestination = AppStates.Destination.needsAttention;
        awaitText("À RÉPARER");
    }
    /** What the list knows of the row at this place, shown or not. */
    function record(index) {
        const rows = list("À réparer").model;
        return rows.data(rows.index(index, 0), Qt.UserRole);
    }
    function line(slug) {
        return control(slug).record.line;
    }
    function awaitLine(slug, text) {
        tryVerify(() => shows(slug) && line(slug) === "Mise à jour nécessaire" + text.replace(/ :/g, "\u00A0:"), 5000, slug + text);
    }
    function button(slug) {
        return all("Synchroniser").find(item => item.Accessible.description === slug);
    }

    function test_rows_tell_each_copy() {
        openShell(["audit", "notes", "revue"]);
        fixture.remove("claude/audit");
        edit("audit");
        spoil("notes");
        openAttention();
        verify(shows("2 compétences") && !shows("revue"));
        compare(all("À mettre à jour").length, 2);
        awaitLine("audit", " · Codex a modifié 1 fichier · Claude : copie manquante");
        awaitLine("notes", " · Claude a modifié 1 fichier · Codex : échec");
        verify(control("notes").record.failure.startsWith("Codex\u00A0: "));

        edit("revue");
        reload();
        awaitLine("revue", " · Codex a modifié 1 fichier · Claude : à jour");
        fixture.remove("codex/revue");
        reload();
        awaitLine("revue", " · Claude : à jour · Codex : copie manquante");

        fixture.remove("workspace/skills/audit");
        button("audit").clicked();
        awaitText("Cette compétence n’est plus là\u00A0: un autre programme l’a déplacée ou supprimée.");
        tryVerify(() => !shows("audit") && shows("notes"));
        mouseClick(control("notes"), 100, 30);
        awaitText("Retour à la bibliothèque");
        compare(model.selectedSkill.manifest.slug, "notes");
    }

    function test_synchronising_in_place() {
        openShell(["audit", "notes"]);
        fixture.remove("claude/audit");
        edit("notes");
        openAttention();
        awaitLine("notes", " · Codex a modifié 1 fichier · Claude : à jour");
        button("audit").clicked();
        awaitText("À JOUR");
        settle();
        awaitGone("audit");
        verify(!shows("Différences avec les copies"), "nothing was to be lost");
        compare(fixture.bytes("claude/audit/SKILL.md"), fixture.bytes("workspace/skills/audit/SKILL.md"));

        button("notes").clicked();
        awaitText("Différences avec les copies", "retouché par l’assistant");
        click("Fermer");
        awaitGone("Différences avec les copies");
        compare(fixture.bytes("codex/notes/SKILL.md"), fixture.bytesOfText("retouché par l’assistant"));
        button("notes").clicked();
        awaitText("Différences avec les copies");
        all("Synchroniser").find(item => item.Accessible.description === "").clicked();
        settle();
        awaitText("Tout est synchronisé");
        compare(fixture.bytes("codex/notes/SKILL.md"), fixture.bytes("workspace/skills/notes/SKILL.md"));
    }

    function test_who_has_changed_what() {
        openShell(["audit", "notes"]);
        edit("audit");
        fixture.write("workspace/skills/notes/SKILL.md", "retouché à la main");
        reload();
        tryVerify(() => control("audit").Accessible.description.includes("copie modifiée"), 5000, "on the card");
        tryVerify(() => control("notes").Accessible.description.includes("copie périmée"));
        openAttention();
        awaitLine("audit", " · Codex a modifié 1 fichier · Claude : à jour");
        awaitLine("notes", " · modifiée à la main · Claude : copie périmée · Codex : copie périmée");
        click("Tout synchroniser");
        awaitText("1 copie modifiée par un assistant sera remplacée par la version de VORNEL, et gardée dans l’historique. Pour adopter ce qu’un assistant a écrit, annulez et ouvrez la compétence.");
        cancel();

        fixture.remove("workspace/.vornel/history/" + fixture.idOf("audit").toString().slice(1, -1).toUpperCase());
        reload();
        awaitLine("audit", " · modifiée à la main · Claude : à jour · Codex : copie différente");
        click("Tout synchroniser");
        awaitText("1 copie différente sera remplacée par la version de VORNEL, et gardée dans l’historique. Pour adopter ce qu’un assistant a écrit, annulez et ouvrez la compétence.");
        cancel();
        button("notes").clicked();
        awaitText(/Rien n’a été modifié chez les assistants\u00A0: .* rien ne sera perdu\.$/);
    }

    function test_a_copy_that_can_not_be_read() {
        openShell(["audit", "notes"]);
        spoil("notes");
        reload();
        const reason = "Codex\u00A0: Échec d’intégrité : La racine n’est pas un dossier : notes (" + fixture.path("codex/notes") + ")";
        tryVerify(() => control("notes").Accessible.description.includes(reason), 5000, "on the card");
        openAttention();
        awaitLine("notes", " · Claude a modifié 1 fichier · Codex : échec");
        compare(control("notes").record.failure, reason);

        list("À réparer").forceActiveFocus();
        press(Qt.Key_Return, "Retour à la bibliothèque");
        tryVerify(() => control("Codex, échec").Accessible.description.includes(fixture.path("codex/notes")));
        model.closeSkill();
        awaitText("À RÉPARER");

        awaitLine("notes", " · Claude a modifié 1 fichier · Codex : échec");
        click("Ouvrir le dossier");
        compare(fixture.openedFolder, fixture.path("codex"));
        compare(control("Mettre de côté").Accessible.description, "notes, Codex");
        control("Mettre de côté").forceActiveFocus();
        press(Qt.Key_Space, "MISE DE CÔTÉ");
        awaitLine("notes", " · Claude a modifié 1 fichier · Codex : à jour");
        verify(!shows("Mettre de côté"));
        tryVerify(() => focusedName() === "notes");
        compare(fixture.bytes("codex/notes/SKILL.md"), fixture.bytes("workspace/skills/notes/SKILL.md"));
        compare(fixture.bytes("claude/notes/SKILL.md"), fixture.bytesOfText("retouché"));
    }

    function test_one_of_two_copies_is_set_aside() {
        openShell(["notes"]);
        block("claude/notes", "codex/notes");
        openAttention();
        awaitLine("notes", " · Claude : échec · Codex : échec");
        verify(!shows("Mettre de côté"), "which one isn't told");
        click("notes", "Claude, échec");
        awaitText("Différences avec les copies");
        all("Mettre de côté")[0].clicked();
        awaitText("MISE DE CÔTÉ");
        settle();
        tryVerify(() => all("Mettre de côté").length === 1);
        verify(!model.isWorking && model.errorMessage === "", "nothing else was asked for");
        click("Fermer");
        awaitGone("Fermer");
        model.closeSkill();
        awaitLine("notes", " · Claude : à jour · Codex : échec");
        verify(!control("notes").record.failure.includes("Claude"));

        block("claude/notes");
        model.reload();
        awaitLine("notes", " · Claude : échec · Codex : échec");
        mouseClick(control("notes"), 100, 30, Qt.RightButton);
        awaitText("Ouvrir le dossier de Claude");
        click("Mettre de côté la copie de Codex");
        awaitLine("notes", " · Claude : échec · Codex : à jour");
    }

    function test_counts_follow_every_operation() {
        const slugs = ["a", "b", "c", "d", "e"];
        openShell(slugs);
        fixture.create("f", "quality", Vornel.Maturity.ready);
        removeCopies([...slugs, "f"]);
        block("codex/d");
        openAttention();
        for (const [count, what, action] of [
            [5, "synchronised", () => model.synchronizeSkill(fixture.idOf("a"))],
            [4, "thrown away", () => fixture.trash(["b"])],
            [4, "restored", () => model.restore(fixture.trashedIdOf("b"))],
            [3, "set aside", () => model.setCopyAside(fixture.idOf("d"), Vornel.TargetKind.codex)],
            [3, "category deleted", () => fixture.deleteCategory("quality")],
            [2, "saved", () => {
                clickUntil("c", "INSTRUCTIONS");
                press(Qt.Key_X);
                keyClick(Qt.Key_S, Qt.ControlModifier);
                awaitText("ENREGISTRÉE");
            }],
        ]) {
            action();
            settle();
            tryVerify(() => control("À réparer").count === count, 5000, what + ": " + control("À réparer").count);
            model.closeSkill();
            tryVerify(() => list("À réparer").count === count);
            model.refreshOverview();
            settle();
            compare(model.needsAttentionCount, count, what + ", read anew");
        }
    }

    function test_synchronising_all_past_a_failure() {
        openShell(["a", "b", "c"]);
        edit("a");
        spoil("b");
        edit("c");
        openAttention();
        clickUntil("Tout synchroniser", "Synchroniser 3 compétences\u00A0?");
        tryVerify(() => all("3 copies modifiées par un assistant seront remplacées par la version de VORNEL, et gardées dans l’historique. Pour adopter ce qu’un assistant a écrit, annulez et ouvrez la compétence. Certaines copies n’ont pas pu être comparées.").length === 1);
        cancel();
        compare(model.needsAttentionCount, 3);

        click("Tout synchroniser");
        accept("2 SYNCHRONISÉES");
        tryVerify(() => shows("b") && !shows("a") && !shows("c"));
        verify(model.errorMessage.startsWith("1 compétence sur 3 n’a pas pu être synchronisée\u00A0:"));
        verify(control("b").record.failure !== "");
        verifyShown("1 compétence", "Les copies de cette compétence ne sont pas identiques à la version de VORNEL.");
        compare(fixture.bytes("codex/c/SKILL.md"), fixture.bytes("workspace/skills/c/SKILL.md"));
    }

    function test_progress_and_stop() {
        openShell(["a", "b", "c"]);
        removeCopies(["a", "b", "c"]);
        openAttention();
        click("Tout synchroniser");
        awaitText("Aucune de leurs copies n’a été modifiée par un assistant\u00A0: rien ne sera perdu.");
        fixture.holdWorkspace();
        accept("Synchronisation 1 sur 3");
        verify(model.isWorking && model.isBusy);
        verify(!button("a").enabled);
        model.synchronizeSkill(fixture.idOf("b"));
        compare(model.batch.count, 3, "never two at once");
        click("Arrêter");
        verify(!control("Arrêter").enabled);
        fixture.releaseWorkspace();
        settle();
        awaitText("À JOUR");
        compare(model.needsAttentionCount, 2);
        verify(!shows("Arrêter"));
    }

    function test_the_question_comes_only_where_it_was_asked_for() {
        openShell(["audit", "notes"]);
        edit("audit");
        edit("notes");
        openAttention();
        awaitLine("notes", " · Codex a modifié 1 fichier · Claude : à jour");
        for (const leave of [() => click("audit"), () => keyClick(Qt.Key_N, Qt.ControlModifier)]) {
            fixture.holdWorkspace();
            click("Tout synchroniser");
            leave();
            fixture.releaseWorkspace();
            settle();
            wait(300);
            verify(!shows("Synchroniser 2 compétences\u00A0?"));
            model.closeSkill();
            awaitText("À RÉPARER");
        }
        press(Qt.Key_Escape);
        awaitGone("Le nom est requis.");
        clickUntil("Tout synchroniser", "Synchroniser 2 compétences\u00A0?");
    }

    function test_search_and_keyboard() {
        openShell(["audit", "notes", "revue"]);
        removeCopies(["audit", "notes", "revue"]);
        openAttention();
        model.searchText = "introuvable";
        awaitText("Aucun résultat");
        model.searchText = "no";
        tryVerify(() => shows("notes") && !shows("audit"));
        verifyShown("1 sur 3 compétences");
        clickUntil("Tout synchroniser", "Aucune de ses copies n’a été modifiée par un assistant\u00A0: rien ne sera perdu.");
        cancel();
        clickUntil("Effacer", "audit");

        list("À réparer").forceActiveFocus();
        press(Qt.Key_Down);
        compare(focusedName(), "notes");
        keyClick(Qt.Key_Return, Qt.ControlModifier);
        awaitText("À JOUR");
        settle();
        awaitGone("notes");
        compare(focusedName(), "revue");
        press(Qt.Key_Up, Qt.Key_Return, "Retour à la bibliothèque");
        compare(model.selectedSkill.manifest.slug, "audit");
    }

    function test_a_long_list_looks_only_at_what_is_shown() {
        openShell(numbered(60));
        removeCopies(numbered(60));
        openAttention();
        awaitLine("s01", " · Claude : à jour · Codex : copie manquante");
        list("À réparer").moveTo(59);
        awaitLine("s60", " · Claude : à jour · Codex : copie manquante");
        verify(control("s60").activeFocus);
        verify(record(30).isStale, "nothing has shown it");
        list("À réparer").positionViewAtIndex(30, ListView.Center);
        tryVerify(() => !record(30).isStale);
    }
}
