import QtQuick
import VORNELApp

/** What is typed is saved, and nothing else changes. */
EditorTest {
    id: test

    name: "Editor"

    function test_what_was_not_typed_does_not_change_data() {
        const rows = {
            "odd characters, CRLF": "\ufeffPrix\u00a0: 3\u202f000\u00a0\r\n\ta \t \r\n  \r\n\u3000a\u2028b\u2029c e\u0301 👩‍💻 🇫🇷 ﬁ\r\na\u000bb\u000cc\u0085d\ufffce\ufdd0f\u200fg\u0001h\ufdd1\r\n",
            "two marks": "\ufeff\ufeffa",
            "mixed line ends": "un\r\ndeux\ntrois\r\rquatre\r\n\n",
            "carriage returns": "un\rdeux\r",
            "front matter, no last newline": "---\nname: Été\n---\n\n# Titre *a* `b`\n```sh\nls\n```"
        };
        return Object.keys(rows).map(tag => ({ tag: tag, text: rows[tag] }));
    }
    function test_what_was_not_typed_does_not_change(row) {
        openSkill(row.text);
        const mark = row.text.startsWith("\ufeff") ? "\ufeff" : "";
        const rest = row.text.slice(mark.length);
        verify(shows("ENREGISTRÉ") && !shows("MODIFIÉ"));
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

    function test_cut_paste_and_new_lines() {
        openSkill("Prix\u00a0: 3\u202f000\r\n\u2028fin\r\n");
        textArea().forceActiveFocus();
        for (const key of [Qt.Key_A, Qt.Key_X])
            keyClick(key, Qt.ControlModifier);
        verify(shows("MODIFIÉ"));
        awaitText("0 caractères");
        keyClick(Qt.Key_V, Qt.ControlModifier);
        verify(shows("ENREGISTRÉ"));
        typeAt(4, "");
        press(Qt.Key_Return);
        keyClick(Qt.Key_Return, Qt.ShiftModifier);
        save();
        verifyStored("Prix\r\n\r\n\u00a0: 3\u202f000\r\n\u2028fin\r\n");
    }

    function test_problems_of_the_text() {
        openSkill("---\nname: Audit\n---\n[a](absent.md)\n");
        awaitText("3 erreurs");
        press(Qt.Key_F8);
        press(Qt.Key_F8);
        verify(shows(/^Erreur, ligne 2, Le nom/));
        compare(textArea().cursorPosition, 4);
        verify(textArea().activeFocus);
        press(Qt.Key_F8);
        press(Qt.Key_F8);
        verify(shows(/^Erreur, ligne 1, La description manque/), "after the last one comes the first");
        keyClick(Qt.Key_F8, Qt.ShiftModifier);
        verify(shows(/^Erreur, ligne 4, Le lien/));

        click("3 erreurs");
        compare(all(/^Erreur, /).length, 3, "each is told once");
        mouseClick(all(/^Erreur, ligne 2/)[0]);
        compare(textArea().cursorPosition, 4);
        typeAt(10, "a");
        keyClick(Qt.Key_Delete);
        press(Qt.Key_End, Qt.Key_Return);
        type("description: Audite");
        awaitText("1 erreur");
        writeEverywhere("absent.md", "là");
        reload();
        awaitGone("1 erreur");
        verify(shows("MODIFIÉ"), "nothing was saved");

        writeEverywhere("seul.txt", "que rien ne mentionne");
        typeAt(0, "-");
        reload();
        awaitText(/^1 erreur, /);
        press(Qt.Key_F8, Qt.Key_F8, "ENREGISTRÉ", Qt.Key_F8, "MODIFIÉ");
        verify(textArea().activeFocus, "it leads from one file to another and back");
    }

    function test_state_of_the_draft() {
        openSkill("texte");
        for (const text of ["Arborescence", "MARKDOWN", "5 caractères", "CATÉGORIE"])
            verify(shows(text), text);
        verify(!control("Enregistrer").enabled && !shows("Modifications non enregistrées"));
        typeAt(5, "s");
        verify(shows("MODIFIÉ") && shows("Modifications non enregistrées"));
        awaitText("6 caractères");
        typeDuringSave("!");
        fixture.holdWorkspace();
        click("Enregistrer");
        awaitText("Opération en cours");
        verify(fixture.model.isBusy && !control("Enregistrer").enabled);
        fixture.releaseWorkspace();
        awaitText("ENREGISTRÉE");
        settle();
        verify(shows("MODIFIÉ"), "what was typed meanwhile isn't saved");
        verifyStored("textes");
        undo();
        verify(shows("ENREGISTRÉ"));
    }

    function test_category_keeps_the_draft() {
        openSkill("texte");
        typeAt(0, "x");
        moveToDesign();
        verify(control("Catégorie, Design").activeFocus, "a menu gives the keyboard back");
        compare(text(), "xtexte");
        verify(shows("MODIFIÉ"));
        save();
        verifyStored("xtexte");
    }

    function test_failed_copy_keeps_saving_possible() {
        const lines = "ligne\n".repeat(200);
        openSkill(lines);
        fixture.remove("codex");
        fixture.write("codex", "un fichier à la place du dossier");
        typeAt(textArea().length, "x");
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("Fermer");
        awaitText("ENREGISTRÉ");
        settle();
        const panel = all(model.errorMessage)[0];
        const bottomOf = (item, y) => item.mapToItem(panel, 0, y).y;
        for (const shown of [all(/caractères$/)[0], all("Attention requise")[0]])
            verify(bottomOf(shown, shown.height) <= 0, "nothing is covered");
        const caret = textArea().cursorRectangle;
        tryVerify(() => bottomOf(textArea(), caret.y + caret.height) < bottomOf(all(/caractères$/)[0], 0), 1000, "the caret is in view");
        verifyOnDisk(lines + "x");
        fixture.remove("codex");
        typeAt(0, "y");
        save();
        verifyStored("y" + lines + "x");
    }

    function test_a_failure_goes_with_its_cause() {
        openSkill("texte");
        textArea().selectAll();
        press(Qt.Key_Delete);
        keyClick(Qt.Key_S, Qt.ControlModifier);
        tryVerify(() => model.errorMessage.endsWith("ne contient pas de fichier SKILL.md."));
        settle();
        textArea().forceActiveFocus();
        type(" ");
        compare(model.errorMessage, "", "the text is another");
        while (textArea().canUndo)
            undo();
        for (const way of ["Retour à la bibliothèque", "Corbeille"]) {
            model.restore(fixture.idOf("audit"));
            tryVerify(() => model.errorMessage !== "");
            settle();
            click(way);
            tryCompare(model, "errorMessage", "");
        }
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
        verifyLinesAreCopied(["un", "deux", "DEUX"]);
        keyClick(Qt.Key_Backtab);
        keyClick(Qt.Key_Down);
        awaitText("idée");
        verify(all("notes/idee.md, ajouté, Claude").length === 1);
        keyClick(Qt.Key_Escape);
        tryVerify(() => !shows("idée"));
        compare(fixture.bytes("claude/audit/SKILL.md"), fixture.bytesOfText("un\nDEUX\n"), "nothing is replaced");

        typeAt(0, "x");
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("xun"); // which is to replace
        verify(shows("un"));
        acceptDifferences();
        verifyStored("xun\ndeux\n");

        fixture.write("workspace/skills/autre/SKILL.md", "sans manifeste");
        all("Synchroniser")[0].clicked();
        awaitText(/^Les copies des assistants n’ont pas pu être comparées/);
        keyClick(Qt.Key_Escape);
        fixture.remove("workspace/skills/autre");
    }

    function verifyLinesAreCopied(texts) {
        const lines = list("Lignes différentes");
        const verifyCopied = (...expected) => {
            keyClick(Qt.Key_C, Qt.ControlModifier);
            compare(fixture.clipboard(), expected.join("\n"));
        };
        lines.forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        verifyCopied(...texts);
        press(Qt.Key_Home);
        compare(focusedName(), texts[0]);
        keyClick(Qt.Key_Down, Qt.ShiftModifier);
        verifyCopied(texts[0], texts[1]);
        const middle = text => lines.mapFromItem(all(text)[0], 100, 8);
        mousePress(lines, 100, middle(texts[2]).y);
        mouseMove(lines, 100, middle(texts[1]).y);
        mouseRelease(lines, 100, middle(texts[1]).y);
        verifyCopied(texts[1], texts[2]);
        mouseClick(lines, 100, middle(texts[2]).y);
        verifyCopied(texts[2]);
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
        awaitText("1 ligne, 11\u00a0octets");
        verify(shows("ENREGISTRÉ") && !shows(/caractères$/));
        const content = control("Contenu de docs/guide.txt");
        content.forceActiveFocus();
        for (const key of [Qt.Key_A, Qt.Key_C])
            keyClick(key, Qt.ControlModifier);
        compare(fixture.clipboard(), "Bonjour\u00a0!\n");
        click("vide.bin");
        awaitText("Ce fichier n’est pas un texte.");
        awaitText("3\u00a0octets");
        verify(shows("LECTURE SEULE") && !shows("ENREGISTRÉ"));
        click("image.png");
        awaitText("Image image.png");
        click("docs");
        tryVerify(() => !shows("guide.txt"));
        press(Qt.Key_Right);
        awaitText("guide.txt");
        click("SKILL.md");
        awaitText("Instructions de la compétence");
        verify(shows("ENREGISTRÉ") && shows(/caractères$/) && !shows("LECTURE SEULE"));
    }

    function test_find() {
        openSkill("Un mot, un autre MOT.\nEt un mot.\n");
        typeAt(0, "");
        keyClick(Qt.Key_F, Qt.ControlModifier);
        verify(control("Rechercher dans le texte").activeFocus);
        type("mot.");
        awaitText("1 / 2");
        compare(textArea().selectedText, "MOT.");
        press(Qt.Key_Backspace);
        awaitText("2 / 3");
        press(Qt.Key_Return, Qt.Key_Return);
        for (const [place, position] of [[17, "2 / 3"], [28, "3 / 3"], [3, "1 / 3"]]) {
            press(Qt.Key_Return);
            compare(textArea().selectionStart, place);
            verify(shows(position));
        }
        compare(control("Rechercher dans le texte").Accessible.description, "Résultat 1 sur 3");
        keyClick(Qt.Key_Return, Qt.ShiftModifier);
        compare(textArea().selectionStart, 28);
        verifyMarks([3, 17], [0, 12]);
        textArea().insert(0, "Un mot ");
        awaitText("4 / 4");
        verifyMarks([3, 10, 24], [0, 19]); // where the text has moved to
        type("x");
        awaitText("Aucun résultat");
        press(Qt.Key_Backspace);
        press(Qt.Key_Escape);
        verify(textArea().activeFocus && !shows(/ \/ 4$/));
        verify(shows("INSTRUCTIONS"), "Esc closes one thing at a time");
        verifyMarks([], [3, 10, 24]);
    }
    /** The letters at some places are marked, those at others aren't. */
    function verifyMarks(marked, plain) {
        const background = place => {
            const letter = textArea().positionToRectangle(place);
            const spot = textArea().mapToItem(root, letter.x + 1, letter.y + letter.height - 1);
            return String(grabImage(root).pixel(spot.x, spot.y));
        };
        const surface = String(Qt.color("#12161B"));
        for (const place of marked)
            tryVerify(() => background(place) !== surface, 1000, "marked at " + place);
        for (const place of plain)
            tryVerify(() => background(place) === surface, 1000, "plain at " + place);
    }

    function test_trash() {
        openSkill("texte");
        typeAt(0, "x");
        awaitKept(["xtexte"]);
        click("Plus d’actions");
        click("Placer dans la corbeille");
        awaitText("Placer « audit » dans la corbeille ?");
        verify(shows(/^Vous pourrez restaurer cette compétence depuis la corbeille\.[^]*seront perdues\.$/));
        accept();
        awaitText("CORBEILLE");
        tryVerify(() => !shows("INSTRUCTIONS"));
        awaitKept([]);
    }
}
