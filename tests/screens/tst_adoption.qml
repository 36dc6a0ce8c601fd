import QtQuick
import VORNELApp

/** What an assistant wrote is kept: adopted, merged or taken into account, and no text of anyone is lost. */
EditorTest {
    id: test

    readonly property string base: "un\ndeux\ntrois\nquatre\ncinq\n"

    name: "Adoption"

    function edit(assistant, text, name = "SKILL.md") {
        fixture.write(assistant + "/audit/" + name, text);
    }
    /** Shows what the copies have become. */
    function openDifferences() {
        click("Actualiser");
        settle();
        const chip = /^(Claude|Codex), copie modifiée$/;
        awaitText(chip);
        mouseClick(all(chip)[0]);
        awaitText("Différences avec les copies");
    }
    /** What all three places hold, and at which revision. */
    function verifyEverywhere(text, revision) {
        verifyStored(text);
        compare(fixture.bytes("codex/audit/SKILL.md"), fixture.bytesOfText(text));
        compare(model.selectedSkill.manifest.revision, revision);
    }
    function awaitDone(confirmation) {
        awaitText(confirmation);
        settle();
        awaitGone("Fermer");
    }

    function test_adopting_a_copy() {
        openSkill(base);
        edit("codex", "écrit par Codex\n");
        edit("codex", "à côté", "notes.md");
        openDifferences();
        verify(!shows("Adopter la version de Claude") && !shows("Fusionner"), "of the one that has written");
        awaitText("Elle devient la prochaine révision, que Claude reçoit. La version actuelle reste dans l’historique.");
        click("Adopter la version de Codex");
        awaitDone("ADOPTÉE");
        verifyEverywhere("écrit par Codex\n", 2);
        compare(text(), "écrit par Codex\n");
        compare(fixture.bytes("claude/audit/notes.md"), fixture.bytesOfText("à côté"));
        verify(fixture.history("audit").includes(base));
        awaitText("Claude, à jour", "Codex, à jour");
        tryVerify(() => textArea().activeFocus);
    }

    function test_adopting_one_of_two_edits() {
        openSkill(base);
        edit("claude", "de Claude");
        edit("codex", "de Codex");
        openDifferences();
        awaitText("Elle devient la prochaine révision, que Codex reçoit. Ce que Codex a modifié reste dans l’historique.");
        click("Adopter la version de Claude");
        awaitDone("ADOPTÉE");
        verifyEverywhere("de Claude", 2);
        verify(fixture.history("audit").includes("de Codex"));
    }

    function test_adopting_chosen_files() {
        openSkill(base);
        edit("claude", "de Claude");
        edit("claude", "un", "a.md");
        edit("claude", "deux", "b.md");
        openDifferences();
        tryVerify(() => focusedName() === "SKILL.md, modifié, Claude");
        press(Qt.Key_Down, Qt.Key_Space);
        const row = () => all("a.md, ajouté, Claude")[0];
        tryVerify(() => row().Accessible.checked && row().activeFocus);
        awaitText(/^Il passe dans la prochaine révision, que Codex reçoit\. Le reste de la copie de Claude ne change pas\./);
        all("b.md, ajouté, Claude")[0].toggled();
        awaitText("Adopter 2 fichiers de Claude");
        row().toggled();
        click("Adopter 1 fichier de Claude");
        awaitText("ADOPTÉE");
        settle();
        compare(fixture.bytes("codex/audit/b.md"), fixture.bytesOfText("deux"));
        verifyOnDisk(base);
        awaitGone("b.md, ajouté, Claude");
        awaitText("Différences avec les copies", "a.md, ajouté, Claude", "Adopter la version de Claude");
        compare(fixture.bytes("claude/audit/SKILL.md"), fixture.bytesOfText("de Claude"));
    }

    function test_a_save_keeps_what_was_typed_beside_what_is_adopted() {
        openSkill(base);
        typeAt(0, "x");
        edit("claude", "de Claude");
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText(/Votre texte reste dans l’éditeur, sans être enregistré\.$/);
        click("Adopter la version de Claude");
        awaitText("ADOPTÉE");
        settle();
        awaitText("Recharger");
        compare(text(), "x" + base);
        verifyEverywhere("de Claude", 2);
        awaitKept(["x" + base]);
        saveInVain();
        keepKnowingly();
        verifyEverywhere("x" + base, 3);
        verify(fixture.history("audit").includes("de Claude"));

        typeAt(0, "y");
        edit("codex", "à côté", "notes.md");
        keyClick(Qt.Key_S, Qt.ControlModifier);
        click("Adopter la version de Codex");
        awaitDone("ADOPTÉE");
        verify(!shows("Recharger") && shows("MODIFIÉ"), "the text is not concerned");
        save();
        verifyEverywhere("yx" + base, 5);
    }
    function keepKnowingly() {
        click("Garder mon texte");
        accept("ENREGISTRÉE");
        settle();
    }

    function test_a_skill_that_has_moved_on_is_not_replaced() {
        openSkill(base);
        edit("claude", "de Claude");
        openDifferences();
        saveElsewhere("ailleurs");
        edit("claude", "de Claude");
        click("Adopter la version de Claude");
        awaitText(/modifiée/);
        settle();
        verifyOnDisk("ailleurs");
        compare(fixture.bytes("claude/audit/SKILL.md"), fixture.bytesOfText("de Claude"));
    }

    function test_merging_without_conflict() {
        openSkill(base);
        edit("claude", base.replace("un", "UN"));
        edit("codex", base.replace("cinq", "CINQ"));
        openDifferences();
        click("Fusionner");
        awaitDone("FUSIONNÉE");
        verifyEverywhere("UN\ndeux\ntrois\nquatre\nCINQ\n", 2);
        verify(!shows("Fusionner les deux copies"));
    }

    function mergeConflicts() {
        openSkill(base);
        writeEverywhere("bild.bin", "0");
        writeEverywhere("weg.md", "deux");
        click("Actualiser");
        settle();
        click("Prendre en compte");
        awaitText("PRISE EN COMPTE");
        settle();
        verify(fixture.saveElsewhere("audit", base)); // so that the revision before holds these files, too
        edit("claude", base.replace("deux", "DEUX"));
        edit("codex", base.replace("deux", "2"));
        fixture.writeLatin1("claude/audit/bild.bin", "\u00e9");
        fixture.writeLatin1("codex/audit/bild.bin", "\u00e8\u00e8");
        edit("claude", "trois", "weg.md");
        fixture.remove("codex/audit/weg.md");
        openDifferences();
        click("Fusionner");
        awaitText("Fusionner les deux copies");
        tryVerify(() => !shows("Différences avec les copies") && focusedName() === "SKILL.md, à régler");
    }
    function choice(name) {
        awaitText(name);
        return control(name);
    }

    function test_settling_conflicts() {
        mergeConflicts();
        awaitText("0 conflit réglé sur 3", "Claude\u00a0: DEUX, Codex\u00a0: 2");
        verify(!choice("Fusionner").enabled);
        choice("Modifier le texte").clicked();
        const area = () => choice("Texte fusionné");
        tryVerify(() => area().activeFocus && area().text.includes("<<<<<<< Claude"));
        verifyShown("SKILL.md, en cours", "0 conflit réglé sur 3");
        area().text = base.replace("deux", "zwei");
        awaitText("SKILL.md, texte", "1 conflit réglé sur 3");

        mouseClick(all("bild.bin, à régler")[0]);
        awaitText("Claude · 1\u00a0octet", "Codex · 2\u00a0octets", "Ce fichier n’est pas un texte.");
        verify(!shows("Modifier le texte"));
        choice("Garder Codex").clicked();
        press(Qt.Key_Down);
        awaitText("Codex · supprimé", "Claude\u00a0: trois, Codex\u00a0: ");
        verifyOnDisk(base);

        click("Fermer");
        awaitGone("Fermer");
        verifyOnDisk(base);
        openDifferences();
        click("Fusionner");
        awaitText("2 conflits réglés sur 3", "SKILL.md, texte", "bild.bin, Codex");
        mouseClick(all("weg.md, à régler")[0]);
        choice("Garder Claude").clicked();
        edit("codex", base.replace("deux", "II"));
        click("Fusionner");
        awaitText("2 conflits réglés sur 3", "SKILL.md, à régler");
        verifyOnDisk(base);
        mouseClick(all("SKILL.md, à régler")[0]);
        awaitText("Claude\u00a0: DEUX, Codex\u00a0: II");
        choice("Garder Claude").clicked();
        awaitText("3 conflits réglés sur 3");
        click("Fusionner");
        awaitDone("FUSIONNÉE");
        verifyEverywhere(base.replace("deux", "DEUX"), 4);
        compare(fixture.bytes("claude/audit/bild.bin"), "e8e8");
        compare(fixture.bytes("codex/audit/weg.md"), fixture.bytesOfText("trois"));
        verify(fixture.history("audit").includes(base.replace("deux", "II")));
    }

    function test_hand_edits() {
        openSkill(base);
        click("Actualiser");
        settle();
        click("Prendre en compte"); // else the copies would hold what no revision does
        awaitGone("Prendre en compte");
        settle();
        fixture.write(file, "à la main");
        click("Actualiser");
        tryVerify(() => text() === "à la main");
        awaitText("Le dossier de cette compétence a été modifié en dehors de VORNEL.");
        typeAt(0, "x");
        click("Prendre en compte");
        awaitText("PRISE EN COMPTE");
        settle();
        awaitGone("Prendre en compte");
        verify(textArea().activeFocus);
        verifyEverywhere("à la main", 3);
        compare(text(), "xà la main");
        save();
        verifyEverywhere("xà la main", 4);
    }

    function test_from_the_list() {
        openShell(["audit", "notes"]);
        edit("claude", "de Claude");
        edit("claude", "à côté", "notes.md");
        edit("codex", "de Codex");
        fixture.write("workspace/skills/notes/SKILL.md", "à la main");
        reload();
        model.selectedDestination = AppStates.Destination.needsAttention;
        tryVerify(() => control("audit").record.line === "Mise à jour nécessaire · Claude a modifié 2 fichiers, Codex 1");
        tryVerify(() => control("notes").record.line.startsWith("Mise à jour nécessaire · modifiée à la main · Claude\u00a0: copie périmée"));
        compare(all("Adopter…").length, 1, "of the one that holds edits");
        click("Adopter…");
        click("Adopter la version de Codex");
        awaitText("ADOPTÉE");
        settle();
        awaitGone("audit", "Fermer");
        compare(fixture.bytes("claude/audit/SKILL.md"), fixture.bytesOfText("de Codex"));
        verify(shows("notes"));

        edit("claude", "encore");
        reload();
        awaitText("audit");
        mouseClick(control("audit"), 100, 30, Qt.RightButton);
        awaitText("Ouvrir");
        press(Qt.Key_Down, Qt.Key_Down, Qt.Key_Return);
        awaitText("Différences avec les copies");
    }
}
