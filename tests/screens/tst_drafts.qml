import QtQuick
import VORNELApp

/** What is typed is kept until it is saved or given up, and never left without a question. */
EditorTest {
    id: test

    name: "Drafts"

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
        press(Qt.Key_Delete);
        awaitKept([""]);
        while (textArea().canUndo)
            undo();
        awaitKept([]);
        typeAt(0, "y");
        awaitKept(["yPrix\u00a0: 3\r\nfin"]);
        save();
        awaitKept([]);
    }

    function test_unsaved_text_is_found_again() {
        openSkill("texte\r\n");
        typeAt(0, "x");
        awaitKept(["xtexte\r\n"]);
        reopen();
        awaitText("Garder");
        compare(text(), "xtexte\n");
        verify(shows("MODIFIÉ"));
        control("Garder").forceActiveFocus();
        press(Qt.Key_Escape);
        verify(textArea().activeFocus && shows("Garder"), "Esc turns from the notice");
        typeAt(0, "y");
        awaitKept(["yxtexte\r\n"]);
        click("Garder");
        verify(!shows("Garder") && textArea().activeFocus);

        reopen();
        click("Abandonner");
        compare(text(), "texte\n");
        verify(shows("ENREGISTRÉ") && !shows("Garder"));
        awaitKept([]);
        undo();
        awaitKept(["yxtexte\r\n"]);
        save();
        verifyStored("yxtexte\r\n");
        reopen();
        verify(!shows("Garder") && shows("ENREGISTRÉ"));
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

    function test_what_keeps_a_text_from_being_kept_is_told() {
        openSkill("texte");
        fixture.write("workspace/.vornel/drafts", "un fichier à la place du dossier");
        typeAt(0, "x");
        const warning = /^Ce texte serait perdu si VORNEL s’arrêtait avant que vous l’enregistriez\. /;
        awaitText(warning);
        save();
        tryVerify(() => !shows(warning));
    }

    function test_leaving_asks() {
        openSkill("texte");
        typeAt(0, "x");
        press(Qt.Key_Escape);
        awaitText("Enregistrer les modifications\u00a0?");
        press(Qt.Key_Escape);
        tryVerify(() => !shows("Ne pas enregistrer"));
        compare(text(), "xtexte");

        click("Corbeille");
        tryVerify(() => focusedName() === "Enregistrer", 1000, "the safe way has the keyboard");
        press(Qt.Key_Return);
        awaitText("ENREGISTRÉE");
        tryVerify(() => !shows("INSTRUCTIONS"));
        verifyStored("xtexte");
    }

    function test_leaving_without_saving() {
        openSkill("texte");
        typeAt(0, "x");
        tryVerify(() => fixture.keptTexts().length === 1);
        keyClick(Qt.Key_N, Qt.ControlModifier);
        click("Ne pas enregistrer");
        awaitText("Le nom est requis.");
        press(Qt.Key_Escape);
        tryVerify(() => !shows("Le nom est requis."));
        compare(text(), "texte");
        awaitKept([]);
        undo();
        compare(text(), "xtexte", "even what was given up can be brought back");
        undo();
        press(Qt.Key_Escape);
        tryVerify(() => !shows("INSTRUCTIONS"));
        verifyStored("texte");
    }

    function test_leaving_while_a_save_runs() {
        openSkill("texte");
        typeAt(0, "x");
        fixture.holdWorkspace();
        keyClick(Qt.Key_S, Qt.ControlModifier);
        press(Qt.Key_Escape);
        awaitText("Ne pas enregistrer");
        fixture.releaseWorkspace();
        tryVerify(() => !shows("INSTRUCTIONS"), 5000, "once all is saved, there is nothing to ask");
        verifyStored("xtexte");
        verify(!fixture.model.departure.isPending);
    }

    function test_the_end_of_the_window() {
        const window = openWindow(["audit"]);
        fixture.model.selectSkill(fixture.idOf("audit"));
        textArea().insert(0, "x");
        window.close();
        verify(window.visible);
        awaitText("Ne pas enregistrer");
        cancel();
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
}
