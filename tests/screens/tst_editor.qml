import QtQuick
import VORNELApp

ScreenTest {
    id: test

    readonly property string file: "workspace/skills/audit/SKILL.md"

    name: "Editor"

    function textArea() {
        return control("Instructions de la compétence");
    }
    /** A library of two skills, opened on the first, whose text is `text`. */
    function openSkill(text) {
        fixture.fillLibrary(["audit", "notes"]);
        for (const folder of ["workspace/skills", "claude", "codex"])
            fixture.write(folder + "/audit/SKILL.md", text);
        showSkill();
    }
    function showSkill() {
        open();
        awaitText("Bibliothèque");
        settle();
        fixture.model.selectSkill(fixture.idOf("audit"));
        awaitText("INSTRUCTIONS");
        settle();
        awaitText("Claude, à jour");
    }
    function typeAt(position, text) {
        textArea().forceActiveFocus();
        textArea().cursorPosition = position;
        type(text);
    }
    function save() {
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("ENREGISTRÉ");
        settle();
    }
    /** Saves what can't be saved, and leaves the sheet that says so to the notice below. */
    function saveInVain() {
        keyClick(Qt.Key_S, Qt.ControlModifier);
        tryVerify(() => shows("Le texte n’est pas enregistré") && focusedName() === "Fermer");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !shows("Le texte n’est pas enregistré"));
    }
    function undo() {
        keyClick(Qt.Key_Z, Qt.ControlModifier);
    }
    function acceptDifferences() {
        awaitText("Différences avec les copies");
        for (let stop = 0; stop < 3 && focusedName() !== "Enregistrer"; ++stop)
            keyClick(Qt.Key_Tab); // over the lines, if there are any, and the way back
        keyClick(Qt.Key_Return);
        awaitText("ENREGISTRÉE");
        awaitText("Claude, à jour");
        tryVerify(() => !shows("Différences avec les copies"));
        settle();
    }
    /** Replaces what is on the disk, and differs from the copies. */
    function keepOwnText() {
        click("Garder mon texte");
        tryVerify(() => focusedName() === "Annuler");
        press(Qt.Key_Tab, Qt.Key_Return);
        acceptDifferences();
    }
    function awaitKept(texts) {
        tryVerify(() => JSON.stringify(fixture.keptTexts()) === JSON.stringify(texts), 2000, "keeps " + texts);
    }
    /** The program ends, however it does, and is started again. */
    function reopen() {
        close();
        fixture.restart();
        showSkill();
    }
    function verifyStored(text) {
        compare(fixture.bytes(file), fixture.bytesOfText(text));
        compare(fixture.bytes("claude/audit/SKILL.md"), fixture.bytesOfText(text));
    }

    function test_what_was_not_typed_does_not_change_data() {
        const rows = {
            "plain": "un\ndeux\n",
            "no last newline": "un\ndeux",
            "no-break spaces": "Prix\u00a0: 3\u202f000\u00a0\n",
            "separators": "a\u2028b\u2029c\n",
            "tabs and blanks": "\ta \t \n  \n \u3000",
            "CRLF": "un\r\ndeux\r\n\r\ntrois\r\n",
            "mixed line ends": "un\r\ndeux\ntrois\r\rquatre\r\n\n",
            "carriage returns": "un\rdeux\r",
            "byte-order mark": "\ufeff# un\r\n",
            "two marks": "\ufeff\ufeffa",
            "emoji, combining marks": "e\u0301 👩‍💻 🇫🇷 ﬁ\n",
            "odd characters": "a\u000bb\u000cc\u0085d\ufffce\ufdd0f\u200fg\u0001h\ufdd1\n",
            "front matter": "---\r\nname: Été\r\n---\r\n\r\n# Titre *a* `b`\r\n```sh\r\nls\r\n```\r\n"
        };
        return Object.keys(rows).map(tag => ({ tag: tag, text: rows[tag] }));
    }
    function test_what_was_not_typed_does_not_change(row) {
        openSkill(row.text);
        const mark = row.text.startsWith("\ufeff") ? "\ufeff" : "";
        const rest = row.text.slice(mark.length);
        verify(shows("ENREGISTRÉ") && !shows("MODIFIÉ"));
        typeAt(0, "x");
        verify(shows("MODIFIÉ"));
        undo();
        verify(shows("ENREGISTRÉ"), "an undone letter");
        textArea().selectAll();
        keyClick(Qt.Key_Delete);
        verify(shows("MODIFIÉ"));
        undo();
        verify(shows("ENREGISTRÉ"), "an undone deletion");

        typeAt(0, "x");
        save();
        verifyStored(mark + "x" + rest);
        typeAt(textArea().length, "y");
        save();
        verifyStored(mark + "x" + rest + "y");
    }

    function test_cut_and_paste() {
        openSkill("Prix\u00a0: 3\u202f000\r\n\u2028fin\r\n");
        textArea().forceActiveFocus();
        for (const key of [Qt.Key_A, Qt.Key_X])
            keyClick(key, Qt.ControlModifier);
        verify(shows("MODIFIÉ"));
        awaitText("0 caractères");
        keyClick(Qt.Key_V, Qt.ControlModifier);
        verify(shows("ENREGISTRÉ"));
    }

    function test_new_lines() {
        openSkill("un\r\ndeux\r\n");
        typeAt(2, "");
        keyClick(Qt.Key_Return);
        keyClick(Qt.Key_Return, Qt.ShiftModifier);
        save();
        verifyStored("un\r\n\r\n\r\ndeux\r\n");
    }

    function test_state_of_the_draft() {
        openSkill("texte");
        for (const text of ["Arborescence", "MARKDOWN", "5 caractères", "CATÉGORIE"])
            verify(shows(text), text);
        verify(!control("Enregistrer").enabled);
        verify(!shows("Modifications non enregistrées"));
        typeAt(5, "s");
        verify(shows("MODIFIÉ") && shows("Modifications non enregistrées"));
        awaitText("6 caractères");
        fixture.holdWorkspace();
        fixture.model.reload();
        verify(shows("Opération en cours"));
        fixture.releaseWorkspace();
        settle();
        function typeOnce() {
            fixture.model.isWorkingChanged.disconnect(typeOnce);
            textArea().insert(0, "!");
        }
        fixture.model.isWorkingChanged.connect(typeOnce); // while the save runs
        click("Enregistrer");
        awaitText("ENREGISTRÉE");
        settle();
        verify(shows("MODIFIÉ"), "what was typed meanwhile isn't saved");
        verifyStored("textes");
        textArea().forceActiveFocus();
        undo();
        verify(shows("ENREGISTRÉ"));
    }

    function test_leaving_asks() {
        openSkill("texte");
        typeAt(0, "x");
        keyClick(Qt.Key_Escape);
        awaitText("Enregistrer les modifications\u00a0?");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !shows("Ne pas enregistrer"));
        compare(textArea().text, "xtexte");

        click("Corbeille");
        awaitText("Ne pas enregistrer");
        tryVerify(() => all("Enregistrer").some(button => button.activeFocus), 1000, "the safe way has the keyboard");
        click("Annuler");
        tryVerify(() => !shows("Annuler"));
        verify(shows("MODIFIÉ"));

        click("Retour à la bibliothèque");
        tryVerify(() => all("Enregistrer").some(button => button.activeFocus));
        keyClick(Qt.Key_Return);
        awaitText("ENREGISTRÉE");
        tryVerify(() => !shows("INSTRUCTIONS"));
        verifyStored("xtexte");
    }

    function test_leaving_without_saving() {
        openSkill("texte");
        typeAt(0, "x");
        keyClick(Qt.Key_N, Qt.ControlModifier);
        awaitText("Ne pas enregistrer");
        click("Ne pas enregistrer");
        awaitText("Le nom est requis.");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !shows("Le nom est requis."));
        compare(textArea().text, "texte");
        textArea().forceActiveFocus();
        undo();
        compare(textArea().text, "xtexte", "even what was given up can be brought back");
        undo();
        keyClick(Qt.Key_Escape);
        tryVerify(() => !shows("INSTRUCTIONS"));
        verifyStored("texte");
    }

    function test_closing_the_window_asks() {
        const window = openWindow(["audit"]);
        fixture.model.selectSkill(fixture.idOf("audit"));
        awaitText("INSTRUCTIONS");
        textArea().insert(0, "x");
        window.close();
        verify(window.visible);
        awaitText("Ne pas enregistrer");
        all("Ne pas enregistrer")[0].clicked();
        awaitClosed(window);
    }

    function test_stale_revision() {
        openSkill("texte\r\n");
        typeAt(0, "x");
        verify(fixture.saveElsewhere("audit", "autre\n"));
        saveInVain();
        awaitText("Cette compétence a été modifiée ailleurs depuis son ouverture. Votre texte est encore ici.");
        click("Copier le texte");
        compare(fixture.clipboard(), "xtexte\r\n");
        click("Recharger");
        tryCompare(textArea(), "text", "autre\n");
        verify(!shows("Recharger") && shows("ENREGISTRÉ"));
        textArea().forceActiveFocus();
        undo();
        save();
        verifyStored("xtexte\r\n"); // what was edited can be brought back
    }

    function test_a_newer_text_is_never_replaced_unseen() {
        openSkill("texte");
        typeAt(0, "x");
        verify(fixture.saveElsewhere("audit", "autre"));
        click("Catégorie, Autre");
        click("Design");
        awaitText("Recharger");
        saveInVain();
        verifyStored("autre");
        textArea().forceActiveFocus();
        undo();
        compare(textArea().text, "texte");
        verify(shows("MODIFIÉ") && !shows("ENREGISTRÉ"), "what was opened is no longer what is saved");
        saveInVain();
        verifyStored("autre");
        click("Recharger");
        tryCompare(textArea(), "text", "autre");
        typeAt(0, "y");
        save();
        verifyStored("yautre");
    }

    function test_an_edit_in_place_is_never_replaced_unseen() {
        openSkill("un\ndeux\n");
        typeAt(0, "x");
        for (const folder of ["workspace/skills", "claude", "codex"])
            fixture.write(folder + "/audit/notes.md", "à côté");
        save(); // what else has changed is no matter for the text
        awaitText("notes.md");
        typeAt(0, "y");
        fixture.write(file, "un\nDEUX\n");
        saveInVain();
        compare(fixture.bytes(file), fixture.bytesOfText("un\nDEUX\n"));
        compare(textArea().text, "yxun\ndeux\n");
        click("Comparer");
        awaitText("DEUX");
        verify(shows("yxun"));
        keyClick(Qt.Key_Escape);
        tryVerify(() => !shows("DEUX"));
        click("Recharger");
        tryCompare(textArea(), "text", "un\nDEUX\n");
        textArea().forceActiveFocus();
        undo();
        keyClick(Qt.Key_S, Qt.ControlModifier); // knowingly
        acceptDifferences();
        verifyStored("yxun\ndeux\n");

        typeAt(0, "z");
        fixture.writeLatin1(file, "\u00e9");
        saveInVain();
        compare(fixture.bytes(file), "e9");
        textArea().forceActiveFocus();
        undo();
        verify(shows("MODIFIÉ"), "nobody knows what is saved");
        fixture.write(file, "yxun\ndeux\n");
        save(); // it is there again
        verify(!shows("Recharger"));
    }

    function test_no_text_of_others_is_taken_for_what_was_sent() {
        openSkill("texte");
        typeAt(0, "x");
        fixture.write(file, "");
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("Recharger");
        settle();
        compare(fixture.bytes(file), "", "nothing was sent yet");
        fixture.write(file, "texte");
        click("Recharger");
        tryCompare(textArea(), "text", "texte");
        typeAt(0, "x");
        save();
        fixture.write(file, "autre");
        click("Actualiser");
        tryCompare(textArea(), "text", "autre");
        typeAt(0, "y");
        fixture.write(file, "xtexte");
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("Recharger");
        settle();
        compare(fixture.bytes(file), fixture.bytesOfText("xtexte"), "what was sent has been taken");
    }

    function test_ones_own_text_is_kept_knowingly() {
        openSkill("texte");
        typeAt(0, "x");
        verify(fixture.saveElsewhere("audit", "autre"));
        saveInVain();
        verify(textArea().activeFocus);
        click("Enregistrer");
        awaitText(/^Cette compétence a été modifiée ailleurs depuis son ouverture\. .* n’avez pas vue\.$/);
        tryVerify(() => focusedName() === "Fermer");
        press(Qt.Key_Tab, Qt.Key_Return);
        awaitText("Votre texte et celui du disque");
        keyClick(Qt.Key_Escape);
        tryVerify(() => textArea().activeFocus);
        click("Garder mon texte");
        awaitText("Remplacer le texte du disque\u00a0?");
        keyClick(Qt.Key_Return);
        tryVerify(() => all("Garder mon texte").length === 1);
        compare(fixture.bytes(file), fixture.bytesOfText("autre"), "the safe way has the keyboard");
        click("Garder mon texte");
        awaitText("Annuler");
        press(Qt.Key_Tab, Qt.Key_Return);
        awaitText("ENREGISTRÉE");
        settle();
        verifyStored("xtexte");
        tryVerify(() => textArea().activeFocus && !shows("Garder mon texte"));
        verify(fixture.history("audit").includes("autre"));
    }

    function test_a_look_that_fails_lets_nothing_be_replaced() {
        openSkill("texte");
        typeAt(0, "x");
        fixture.write(file, "autre");
        fixture.isUnreadable = true;
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("Erreur d’entrée-sortie");
        settle();
        compare(fixture.bytes(file), fixture.bytesOfText("autre"));
        verify(shows("MODIFIÉ"));
        fixture.isUnreadable = false;
        fixture.remove(file);
        saveInVain();
        compare(fixture.bytes(file), "");
        awaitKept(["xtexte"]);
        keepOwnText();
        verifyStored("xtexte");
        typeAt(0, "y");
        fixture.writeLatin1(file, "\u00e9");
        keyClick(Qt.Key_S, Qt.ControlModifier);
        keepOwnText();
        verifyStored("yxtexte");
        verify(fixture.history("audit").includes("\ufffd"), "what is no text is kept, too");
    }

    function test_a_check_shows_that_it_waits() {
        openSkill("texte");
        typeAt(0, "x");
        fixture.holdWorkspace();
        click("Enregistrer");
        awaitText("Opération en cours");
        verify(fixture.model.isBusy && !control("Enregistrer").enabled);
        fixture.releaseWorkspace();
        awaitText("ENREGISTRÉE");
        verifyStored("xtexte");
    }

    function test_a_kept_text_that_can_not_be_read() {
        fixture.fillLibrary(["audit", "notes"]);
        open();
        awaitText("Bibliothèque");
        settle();
        const kept = "workspace/.vornel/drafts/" + String(fixture.idOf("audit")).slice(1, -1).toUpperCase() + ".json";
        fixture.write(kept, " ".repeat(26214401)); // of which nobody knows what it is
        fixture.model.selectSkill(fixture.idOf("audit"));
        awaitText(/^VORNEL n’a pas pu lire le texte non enregistré.* Le fichier est trop volumineux/);
        typeAt(0, "x");
        awaitKept(["xname: audit"]);
        save();
        awaitKept([]);
        awaitText(/^Un texte non enregistré de «\u00a0audit\u00a0» n’a pas pu être lu\. .*-unreadable-/);
        verify(!shows("Copier le texte"));
        click("Ouvrir le dossier");
        verify(fixture.openedFolder.endsWith("workspace/.vornel/drafts"));
    }

    function test_unsaved_text_is_kept() {
        openSkill("Prix\u00a0: 3\r\nfin");
        typeAt(0, "");
        let typed = "";
        for (const start = Date.now(); Date.now() - start < 2000; wait(50)) {
            type("x");
            typed += "x";
        }
        verify(fixture.keptTexts().length === 1, "while the typing goes on");
        awaitKept([typed + "Prix\u00a0: 3\r\nfin"]);
        textArea().selectAll();
        keyClick(Qt.Key_Delete);
        awaitKept([""]);
        while (textArea().canUndo)
            undo();
        awaitKept([]);
        typeAt(0, "y");
        awaitKept(["yPrix\u00a0: 3\r\nfin"]);
        save();
        awaitKept([]);
        typeAt(0, "z");
        tryVerify(() => fixture.keptTexts().length === 1);
        keyClick(Qt.Key_Escape);
        awaitText("Ne pas enregistrer");
        click("Ne pas enregistrer");
        awaitKept([]);
    }

    function test_unsaved_text_is_found_again() {
        openSkill("texte\r\n");
        typeAt(0, "x");
        awaitKept(["xtexte\r\n"]);
        reopen();
        awaitText("Garder");
        compare(textArea().text, "xtexte\n");
        verify(shows("MODIFIÉ"));
        control("Garder").forceActiveFocus();
        keyClick(Qt.Key_Escape);
        verify(textArea().activeFocus && shows("Garder"), "Esc turns from the notice");
        typeAt(0, "y");
        awaitKept(["yxtexte\r\n"]);
        click("Garder");
        verify(!shows("Garder") && textArea().activeFocus);

        reopen();
        awaitText("Abandonner");
        click("Abandonner");
        compare(textArea().text, "texte\n");
        verify(shows("ENREGISTRÉ") && !shows("Garder"));
        awaitKept([]);
        textArea().forceActiveFocus();
        undo();
        awaitKept(["yxtexte\r\n"]);
        save();
        verifyStored("yxtexte\r\n");
        reopen();
        verify(!shows("Garder") && shows("ENREGISTRÉ"));
    }

    function test_found_text_of_a_skill_that_has_changed() {
        openSkill("texte");
        typeAt(0, "x");
        awaitKept(["xtexte"]);
        close();
        fixture.restart();
        for (const folder of ["workspace/skills", "claude", "codex"])
            fixture.write(folder + "/audit/SKILL.md", "autre");
        showSkill();
        awaitText("Recharger");
        verify(!shows("Garder"));
        compare(textArea().text, "xtexte");
        click("Catégorie, Autre");
        click("Design"); // after which the skill is read anew
        awaitText("CATÉGORIE MODIFIÉE");
        settle();
        saveInVain();
        compare(fixture.bytes(file), fixture.bytesOfText("autre"));
        textArea().forceActiveFocus();
        undo();
        compare(textArea().text, "autre");
        verify(!shows("Recharger") && shows("ENREGISTRÉ"));
        awaitKept([]);
        typeAt(0, "y");
        save();
        verifyStored("yautre");
    }

    function test_what_keeps_a_text_from_being_kept_is_told() {
        openSkill("texte");
        fixture.write("workspace/.vornel/drafts", "un fichier à la place du dossier");
        typeAt(0, "x");
        const warning = "Ce texte serait perdu si VORNEL s’arrêtait avant que vous l’enregistriez. ";
        tryVerify(() => all(RegExp(warning)).length === 1, 3000);
        save();
        tryVerify(() => all(RegExp(warning)).length === 0);
    }

    function test_the_end_of_the_program_keeps_the_text() {
        const window = openWindow(["audit"]);
        fixture.model.selectSkill(fixture.idOf("audit"));
        awaitText("INSTRUCTIONS");
        textArea().insert(0, "x");
        fixture.holdWorkspace();
        fixture.model.reload();
        fixture.model.departure.force();
        compare(fixture.keptTexts(), ["xname: audit"], "whoever holds the workspace");
        window.close();
        verify(window.visible, "what runs is waited for");
        fixture.releaseWorkspace();
        awaitClosed(window);
        compare(fixture.keptTexts(), ["xname: audit"]);
    }

    function test_leaving_while_a_save_runs() {
        openSkill("texte");
        typeAt(0, "x");
        fixture.holdWorkspace();
        keyClick(Qt.Key_S, Qt.ControlModifier);
        keyClick(Qt.Key_Escape);
        awaitText("Ne pas enregistrer");
        fixture.releaseWorkspace();
        tryVerify(() => !shows("INSTRUCTIONS"), 5000, "once all is saved, there is nothing to ask");
        verifyStored("xtexte");
        verify(!fixture.model.departure.isPending);
    }

    function test_changes_elsewhere() {
        openSkill("texte");
        verify(fixture.saveElsewhere("audit", "autre"));
        click("Actualiser");
        tryCompare(textArea(), "text", "autre", 5000, "without edits, the new text is shown");
        typeAt(0, "x");
        click("Actualiser");
        settle();
        verify(!shows("Recharger"));
        verify(fixture.saveElsewhere("audit", "encore"));
        click("Actualiser");
        awaitText("Recharger");
        compare(textArea().text, "xautre");

        fixture.remove("workspace/skills/audit");
        fixture.model.refreshOverview();
        awaitText("Cette compétence n’est plus dans la bibliothèque. Votre texte est encore ici.");
        verify(!shows("Recharger") && shows("Copier le texte"));
        saveInVain();
        textArea().forceActiveFocus();
        undo();
        verify(shows("HORS BIBLIOTHÈQUE") && !shows("ENREGISTRÉ"));
    }

    function test_category_keeps_the_draft() {
        openSkill("texte");
        typeAt(0, "x");
        click("Catégorie, Autre");
        awaitText("Design");
        click("Design");
        awaitText("CATÉGORIE MODIFIÉE");
        awaitText("Catégorie, Design");
        verify(control("Catégorie, Design").activeFocus, "a menu gives the keyboard back");
        settle();
        compare(textArea().text, "xtexte");
        verify(shows("MODIFIÉ"));
        save();
        verifyStored("xtexte");
    }

    function test_failed_copy_keeps_saving_possible() {
        openSkill("texte");
        fixture.remove("codex");
        fixture.write("codex", "un fichier à la place du dossier");
        typeAt(0, "x");
        keyClick(Qt.Key_S, Qt.ControlModifier);
        tryVerify(() => fixture.model.errorMessage !== "");
        awaitText("ENREGISTRÉ");
        compare(fixture.bytes(file), fixture.bytesOfText("xtexte"));
        fixture.remove("codex");
        typeAt(0, "y");
        save();
        verifyStored("yxtexte");
    }

    function test_drift_is_shown_before_it_is_replaced() {
        openSkill("un\ndeux\n");
        fixture.write("claude/audit/SKILL.md", "un\nDEUX\n");
        fixture.write("claude/audit/notes/idee.md", "idée\n");
        click("Actualiser");
        awaitText("Claude, copie modifiée");
        verify(shows("Codex, à jour"));
        all("Synchroniser")[0].clicked();
        awaitText("Différences avec les copies");
        awaitText("deux");
        verify(shows("DEUX") && shows("SKILL.md, modifié, Claude"));
        keyClick(Qt.Key_Down);
        awaitText("idée");
        verify(all("notes/idee.md, ajouté, Claude").length === 1);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !shows("idée"));
        compare(fixture.bytes("claude/audit/SKILL.md"), fixture.bytesOfText("un\nDEUX\n"), "nothing is replaced");

        typeAt(0, "x");
        keyClick(Qt.Key_S, Qt.ControlModifier);
        acceptDifferences();
        verifyStored("xun\ndeux\n");

        fixture.write("workspace/skills/autre/SKILL.md", "sans manifeste");
        all("Synchroniser")[0].clicked();
        awaitText(/^Les copies des assistants n’ont pas pu être comparées/);
        keyClick(Qt.Key_Escape);
        fixture.remove("workspace/skills/autre");
    }

    function test_files() {
        fixture.fillLibrary(["audit"]);
        fixture.write("workspace/skills/audit/docs/guide.txt", "Bonjour\u00a0!\n");
        fixture.write("workspace/skills/audit/docs/vide.bin", "a\u0000b");
        fixture.writePicture("workspace/skills/audit/image.png", Qt.size(40, 30));
        open();
        awaitText("Bibliothèque");
        settle();
        fixture.model.selectSkill(fixture.idOf("audit"));
        awaitText("guide.txt");
        click("guide.txt");
        awaitText("Fichier associé à cette compétence.");
        awaitText("11 octets".replace(" ", "\u00a0"));
        const content = control("Contenu de docs/guide.txt");
        verify(content.readOnly);
        content.forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        keyClick(Qt.Key_C, Qt.ControlModifier);
        compare(fixture.clipboard(), "Bonjour\u00a0!\n");
        click("vide.bin");
        awaitText("Ce fichier n’est pas un texte.");
        click("image.png");
        awaitText("Image image.png");
        click("docs");
        tryVerify(() => !shows("guide.txt"));
        keyClick(Qt.Key_Right);
        awaitText("guide.txt");
        keyClick(Qt.Key_Left);
        tryVerify(() => !shows("guide.txt"));
        click("SKILL.md");
        awaitText("Instructions de la compétence");
    }

    function test_find() {
        openSkill("Un mot, un autre MOT.\nEt un mot.\n");
        typeAt(0, "");
        keyClick(Qt.Key_F, Qt.ControlModifier);
        const field = control("Rechercher dans le texte");
        verify(field.activeFocus);
        type("mot");
        awaitText("3 résultats");
        compare(textArea().selectionStart, 3);
        for (const place of [17, 28, 3]) {
            keyClick(Qt.Key_Return);
            compare(textArea().selectionStart, place);
        }
        keyClick(Qt.Key_Return, Qt.ShiftModifier);
        compare(textArea().selectionStart, 28);
        type("x");
        awaitText("Aucun résultat");
        keyClick(Qt.Key_Escape);
        verify(textArea().activeFocus && !shows("Aucun résultat"));
        verify(shows("INSTRUCTIONS"), "Esc closes one thing at a time");
    }

    function test_trash() {
        openSkill("texte");
        click("Plus d’actions");
        awaitText("Placer dans la corbeille");
        click("Placer dans la corbeille");
        awaitText("Placer « audit » dans la corbeille ?");
        verify(shows("Vous pourrez restaurer cette compétence depuis la corbeille."));
        keyClick(Qt.Key_Return);
        tryVerify(() => !shows("Annuler"));
        verify(shows("INSTRUCTIONS"), "the way back has the keyboard");
        typeAt(0, "x");
        awaitKept(["xtexte"]);
        click("Plus d’actions");
        click("Placer dans la corbeille");
        awaitText("Annuler");
        click("Placer dans la corbeille");
        awaitText("CORBEILLE");
        tryVerify(() => !shows("INSTRUCTIONS"));
        awaitKept([]);
    }
}
