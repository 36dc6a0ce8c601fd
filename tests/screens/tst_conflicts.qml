import QtQuick
import VORNELApp

/** A text that was changed elsewhere is never replaced unseen, and no text is called saved that isn't. */
EditorTest {
    id: test

    readonly property string reason: "Cette compétence a été modifiée ailleurs depuis son ouverture. Votre texte est encore ici."

    name: "Conflicts"

    function test_a_newer_text() {
        openSkill("texte\r\n");
        typeAt(0, "x");
        saveElsewhere("autre\n");
        saveInVain();
        awaitText(reason);
        moveToDesign(); // after which the skill is read anew
        saveInVain();
        undo();
        compare(text(), "texte\n");
        verify(shows("MODIFIÉ") && !shows("ENREGISTRÉ"), "what was opened is no longer what is saved");
        saveInVain();
        verifyStored("autre\n");
        click("Copier le texte");
        compare(fixture.clipboard(), "texte\r\n");
        click("Recharger");
        tryVerify(() => text() === "autre\n");
        verify(!shows("Recharger") && shows("ENREGISTRÉ"));
        undo();
        save();
        verifyStored("texte\r\n"); // what was left can be brought back
    }

    function test_an_edit_in_place() {
        openSkill("un\ndeux\n");
        typeAt(0, "x");
        writeEverywhere("notes.md", "à côté");
        save(); // what else has changed is no matter for the text
        awaitText("notes.md");
        typeAt(0, "y");
        fixture.write(file, "un\nDEUX\n");
        saveInVain();
        verifyOnDisk("un\nDEUX\n");
        compare(text(), "yxun\ndeux\n");
        click("Comparer");
        awaitText("DEUX");
        verify(shows("yxun"));
        press(Qt.Key_Escape);
        tryVerify(() => !shows("DEUX"));
        click("Recharger");
        tryVerify(() => text() === "un\nDEUX\n");
        undo();
        keyClick(Qt.Key_S, Qt.ControlModifier); // knowingly
        acceptDifferences();
        verifyStored("yxun\ndeux\n");

        typeAt(0, "z");
        fixture.writeLatin1(file, "\u00e9");
        saveInVain();
        compare(fixture.bytes(file), "e9");
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
        saveInVain();
        compare(fixture.bytes(file), "", "nothing was sent yet");
        fixture.write(file, "texte");
        click("Recharger");
        tryVerify(() => text() === "texte");
        typeAt(0, "x");
        save();
        fixture.write(file, "autre");
        click("Actualiser");
        tryVerify(() => text() === "autre");
        typeAt(0, "y");
        fixture.write(file, "xtexte");
        saveInVain();
        verifyOnDisk("xtexte"); // what was sent has been taken
    }

    function test_ones_own_text_is_kept_knowingly() {
        openSkill("texte");
        typeAt(0, "x");
        saveElsewhere("autre");
        saveInVain();
        verify(textArea().activeFocus);
        click("Enregistrer");
        awaitText(/^Cette compétence a été modifiée ailleurs depuis son ouverture\. .* n’avez pas vue\.$/);
        tryVerify(() => focusedName() === "Fermer");
        press(Qt.Key_Tab, Qt.Key_Return);
        awaitText("Votre texte et celui du disque");
        press(Qt.Key_Escape);
        tryVerify(() => textArea().activeFocus);
        click("Garder mon texte");
        awaitText("Remplacer le texte du disque\u00a0?");
        press(Qt.Key_Return);
        tryVerify(() => all("Garder mon texte").length === 1);
        verifyOnDisk("autre"); // the safe way has the keyboard
        click("Garder mon texte");
        accept();
        awaitText("ENREGISTRÉE");
        settle();
        verifyStored("xtexte");
        tryVerify(() => textArea().activeFocus && !shows("Garder mon texte"));
        verify(fixture.history("audit").includes("autre"));

        typeAt(0, "y");
        fixture.remove(file);
        saveInVain();
        click("Garder mon texte");
        accept();
        awaitText("Différences avec les copies");
        wait(300); // in which the question is gone for good
        verify(!textArea().activeFocus, "what is typed is for the sheet");
        press(Qt.Key_Escape);
        tryVerify(() => !shows("Différences avec les copies") && textArea().activeFocus);
        verify(shows("MODIFIÉ"));
    }

    function test_a_look_that_fails() {
        openSkill("texte");
        typeAt(0, "x");
        fixture.write(file, "autre");
        fixture.isUnreadable = true;
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("Erreur d’entrée-sortie");
        settle();
        verifyOnDisk("autre");
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
        saveInVain();
        keepOwnText();
        verifyStored("yxtexte");
        verify(fixture.history("audit").includes("\ufffd"), "what is no text is kept, too");

        typeAt(0, "z");
        saveElsewhere("autre");
        fixture.writeLatin1(file, "\u00e8"); // over a revision that isn't known here
        saveInVain();
        keepOwnText();
        verifyStored("zyxtexte");
        verify(fixture.history("audit").includes("autre"));
    }

    function test_ones_own_save_is_not_anothers() {
        openSkill("texte");
        typeAt(0, "x");
        fixture.saveElsewhere("notes", "autre"); // for which the library is read anew
        writeEverywhere("notes.md", "à côté");
        typeDuringSave("!");
        fixture.holdWorkspace();
        fixture.model.refreshOverview(); // after which the skill is read, as it is before the save
        fixture.model.openSkill.save();
        fixture.releaseWorkspace();
        awaitText("ENREGISTRÉE");
        settle();
        verifyStored("xtexte");
        verify(shows("MODIFIÉ") && shows("notes.md"));
        verify(!shows("Recharger"), "the text on the disk is one’s own");
    }

    function test_changes_without_edits_are_shown() {
        openSkill("texte");
        saveElsewhere("autre");
        click("Actualiser");
        tryVerify(() => text() === "autre");
        typeAt(0, "x");
        click("Actualiser");
        settle();
        verify(!shows("Recharger"));
        saveElsewhere("encore");
        click("Actualiser");
        awaitText("Recharger");
        compare(text(), "xautre");

        fixture.remove("workspace/skills/audit");
        fixture.model.refreshOverview();
        awaitText("Cette compétence n’est plus dans la bibliothèque. Votre texte est encore ici.");
        verify(!shows("Recharger") && shows("Copier le texte"));
        saveInVain();
        undo();
        verify(shows("HORS BIBLIOTHÈQUE") && !shows("ENREGISTRÉ"));
    }

    function test_found_text_of_a_skill_that_has_changed() {
        openSkill("texte");
        typeAt(0, "x");
        awaitKept(["xtexte"]);
        close();
        fixture.restart();
        writeEverywhere("SKILL.md", "autre");
        showSkill();
        awaitText("Recharger");
        verify(!shows("Garder"));
        compare(text(), "xtexte");
        moveToDesign(); // after which the skill is read anew
        saveInVain();
        verifyOnDisk("autre");
        undo();
        compare(text(), "autre");
        verify(!shows("Recharger") && shows("ENREGISTRÉ"));
        awaitKept([]);
        typeAt(0, "y");
        save();
        verifyStored("yautre");
    }
}
