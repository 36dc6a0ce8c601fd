import QtQuick
import VORNELApp

ScreenTest {
    id: test

    name: "Trash"

    function openTrash(slugs) {
        openShell(slugs.concat("reste"));
        trash(...slugs);
        model.selectedDestination = AppStates.Destination.trash;
        awaitText("CORBEILLE");
        tryVerify(() => shows(slugs[0]));
    }
    /** The button of a row. */
    function button(slug, name) {
        const found = all(name).filter(item => item.Accessible.description === slug);
        compare(found.length, 1, slug + ", " + name);
        return found[0];
    }
    function trashed() {
        settle();
        return model.overview.trashedSkills.map(skill => skill.slug).join();
    }
    /** Imports another skill of this slug, which only another program brings beside the one in the trash. */
    function takeSlug(slug) {
        fixture.write("claude/" + slug + "/SKILL.md", "un autre");
        model.beginImportScan();
        settle();
        model.commitImport();
        settle();
        model.selectedDestination = AppStates.Destination.trash;
        tryVerify(() => shows(slug));
    }

    function test_rows() {
        openTrash(["audit", "notes"]);
        verifyShown("2 éléments");
        tryVerify(() => control("audit").Accessible.description.endsWith("Mise à la corbeille à l’instant"));
        fixture.emptyTrashElsewhere();
        clickUntil("Actualiser", "La corbeille est vide");
        tryVerify(() => !shows("audit") && !shows("notes")); // the rows go with the next frame
        tryVerify(() => control("Actualiser").activeFocus);
        verifyShown("0 éléments");
        verify(!control("Vider la corbeille").enabled && !control("Sélectionner").enabled);
        for (let stop = 0; stop < 12; ++stop) {
            press(Qt.Key_Tab);
            verify(!list("Corbeille").activeFocus, "there is nothing to go to");
        }
    }

    function test_folders_of_others_are_replaced_only_when_told() {
        openTrash(["audit", "notes"]);
        fixture.write("claude/audit", "à un autre");
        button("audit", "Restaurer").clicked();
        awaitText("C’est un fichier.");
        verify(!shows("Remplacer et restaurer"));
        cancel();
        fixture.remove("claude/audit");
        fixture.write("claude/audit/notes.txt", "à un autre");
        button("audit", "Restaurer").clicked();
        click("Ouvrir le dossier");
        verify(fixture.openedFolder.endsWith("/claude/audit"));
        cancel();
        compare(trashed(), "audit,notes");
        click("Sélectionner");
        keyClick(Qt.Key_A, Qt.ControlModifier);
        clickUntil("Restaurer", "Restaurer 2 compétences\u00A0?");
        accept("2 RESTAURÉES");
        compare(trashed(), "");
    }

    function test_what_is_selected_during_the_look_is_not_restored() {
        openTrash(["a", "b", "c"]);
        click("Sélectionner");
        for (const slug of ["a", "b"])
            click(slug);
        fixture.holdWorkspace();
        click("Restaurer", "c");
        awaitText("3 sélectionnées");
        press(Qt.Key_Menu);
        verify(!shows("Désélectionner les 3"));
        fixture.releaseWorkspace();
        awaitText("Restaurer 2 compétences\u00A0?");
        accept("2 RESTAURÉES");
        compare(trashed(), "c");
    }

    function test_one_and_the_rest() {
        openTrash(["audit", "notes", "plan"]);
        button("audit", "Restaurer").clicked();
        awaitText("Restaurer « audit » ?");
        verifyShown("audit sera à nouveau disponible dans vos assistants.");
        cancel();
        compare(trashed(), "audit,notes,plan");
        button("audit", "Restaurer").clicked();
        accept("RESTAURÉE");
        compare(trashed(), "notes,plan");
        clickUntil("Vider la corbeille", "Vider toute la corbeille ?", "2 éléments seront supprimés définitivement.");
        cancel();

        button("notes", "Supprimer définitivement").clicked();
        awaitText("Supprimer définitivement « notes » ?", "Cette action est irréversible.");
        accept("SUPPRIMÉE", "1 élément");
        compare(trashed(), "plan");
        clickUntil("Vider la corbeille", "1 élément sera supprimé définitivement.");
        accept("CORBEILLE VIDÉE", "La corbeille est vide");
    }

    function test_a_screen_that_changes_while_a_sheet_closes_leaves_the_keyboard() {
        openTrash(["audit", "notes"]);
        button("audit", "Supprimer définitivement").clicked();
        tryVerify(() => focusedName() === "Annuler");
        press(Qt.Key_Escape);
        model.selectedDestination = AppStates.Destination.needsAttention;
        awaitGone("Annuler");
        awaitText("À RÉPARER");
        wait(200); // by then the sheet would have closed
        tryVerify(() => root.Window.activeFocusItem !== root.Window.contentItem);
    }

    function test_several_and_a_failure_among_them() {
        openTrash(["a", "b", "c", "d", "e"]);
        takeSlug("b");
        clickUntil("Sélectionner", "0 sélectionnées");
        verify(all("Restaurer").length === 1 && !control("Restaurer").enabled);
        click("e", "Supprimer définitivement");
        awaitText("Supprimer définitivement « e » ?"); // one is named
        accept();
        settle();
        click("Sélectionner");
        for (const slug of ["a", "b", "c"])
            click(slug);
        awaitText("3 sélectionnées");
        clickUntil("Restaurer", "Restaurer 3 compétences\u00A0?");
        verifyShown("Elles seront à nouveau disponibles dans vos assistants.");
        accept("2 RESTAURÉES");
        compare(trashed(), "b,d");
        verify(model.errorMessage.startsWith("1 compétence sur 3 n’a pas pu être restaurée\u00A0:\n«\u00A0b\u00A0»\u00A0: "));
        verify(control("b").record.failure !== "", "the row tells why");
        compare(control("d").record.failure, "");
        verify(shows("1 sélectionnée"), "what failed stays selected");

        keyClick(Qt.Key_A, Qt.ControlModifier);
        awaitText("2 sélectionnées");
        clickUntil("Supprimer définitivement", "Supprimer définitivement 2 compétences\u00A0?");
        verifyShown("b, d");
        accept("2 SUPPRIMÉES", "La corbeille est vide");
        compare(model.errorMessage, "");
        verify(!shows("Terminer la sélection"));
    }

    function test_restored_though_an_assistant_has_no_copy() {
        openTrash(["a", "b"]);
        click("Sélectionner");
        keyClick(Qt.Key_A, Qt.ControlModifier);
        click("Restaurer");
        tryVerify(() => focusedName() === "Annuler");
        fixture.write("codex/b", "pas un dossier"); // which nothing foretold
        accept("2 RESTAURÉES");
        compare(trashed(), "");
        verify(model.errorMessage.startsWith("1 compétence sur 2 est restaurée, mais pas chez tous vos assistants\u00A0:\n«\u00A0b\u00A0»\u00A0: "));
    }

    function test_scroll_stays() {
        openTrash(numbered(80));
        const view = list("Corbeille");
        view.contentY = 700;
        const row = view.itemAt(10, 900);
        const name = row.text;
        const next = view.itemAtIndex(row.index + 1).text;
        const before = view.contentY;
        mouseClick(button(name, "Supprimer définitivement"));
        accept();
        awaitGone(name);
        tryVerify(() => root.Window.activeFocusItem.text === next, 5000, "the next row has the keyboard");
        compare(view.contentY, before);

        for (let index = 0; index < 60; ++index) {
            view.moveTo(index);
            press(Qt.Key_Space);
        }
        awaitText("60 sélectionnées");
        view.contentY = 500;
        click("Supprimer définitivement");
        accept("60 SUPPRIMÉES");
        tryVerify(() => view.contentY === 500, 5000, "when most go, too");
    }

    function test_a_row_that_goes_hands_the_keyboard_on() {
        openTrash(["a", "b"]);
        const row = list("Corbeille").itemAtIndex(0);
        control("Actualiser").forceActiveFocus();
        list("Corbeille").model.rowsRemoved.connect(() => row.forceActiveFocus()); // as a sheet does that closes just then
        model.deletePermanently(row.record.skill.id);
        tryVerify(() => root.Window.activeFocusItem.text === "b");
    }

    function test_search_and_keyboard() {
        openTrash(["a", "b", "c"]);
        model.searchText = "B";
        tryVerify(() => shows("b") && !shows("a"));
        verifyShown("1 sur 3 éléments");
        keyClick(Qt.Key_A, Qt.ControlModifier);
        awaitText("1 sélectionnée");
        press(Qt.Key_Escape);
        model.searchText = "introuvable";
        awaitText("Aucun résultat");
        clickUntil("Effacer la recherche", "a", "b");

        list("Corbeille").forceActiveFocus();
        compare(focusedName(), "a");
        press(Qt.Key_Down, Qt.Key_Down, Qt.Key_Down);
        compare(focusedName(), "c");
        press(Qt.Key_Home, Qt.Key_Down, Qt.Key_Return, "Restaurer « b » ?");
        accept("RESTAURÉE");
        tryVerify(() => focusedName() === "c");
        press(Qt.Key_Delete, "Supprimer définitivement « c » ?", Qt.Key_Escape);
        awaitGone("Annuler");
        press(Qt.Key_Space, Qt.Key_Up);
        compare(focusedName(), "a");
        verifyShown("1 sélectionnée");
        press(Qt.Key_Delete);
        awaitText("Supprimer définitivement « a » ?"); // which isn't the selected one
        press(Qt.Key_Escape);
        awaitGone("Annuler");
        press(Qt.Key_Escape);
        verify(!shows("1 sélectionnée"));
    }

    function test_gone_elsewhere() {
        openTrash(["audit", "notes"]);
        fixture.emptyTrashElsewhere();
        const id = String(model.overview.trashedSkills[0].id).slice(1, -1).toUpperCase();
        button("audit", "Restaurer").clicked();
        accept("La corbeille est vide");
        compare(model.errorMessage, "Skill introuvable : " + id, "the message outlives the row");
    }

    /** Sets a copy of "reste", which is active, aside. */
    function setAside(number, assistant, text) {
        fixture.write(`workspace/.vornel/recovery/00000000-0000-4000-8000-00000000000${number}-removed-${assistant}-reste/SKILL.md`, text);
    }
    /** The row of a copy. */
    function copyOf(name, assistant) {
        const found = all(new RegExp(`^${name}, Copie de ${assistant} · .*`)).filter(item => item.record !== undefined);
        compare(found.length, 1, name + ", " + assistant);
        return found[0];
    }

    function test_copies_set_aside() {
        openTrash(["audit"]);
        setAside(1, "claude", "retrouvé");
        setAside(2, "codex", "autre\n");
        reload();
        awaitText("Copies mises de côté", /^4 copies, /);
        clickUntil("Afficher les copies", "Masquer les copies");
        list("Copies mises de côté").forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        verify(!shows("1 sélectionnée"), "the trash isn't meant");
        press(Qt.Key_Home);
        awaitText(/^reste, Copie de Claude · 1.fichier, 9.octets/);
        compare(all("Revenir à cette version").length, 2, "what is in the trash has no next revision");

        copyOf("reste", "Claude").forceActiveFocus();
        press(Qt.Key_Return, "Copie de «\u00A0reste\u00A0»", "SKILL.md, modifié");
        awaitText(/retrouvé/);
        click("Fermer");
        awaitGone("Fermer");
        tryVerify(() => root.Window.activeFocusItem === copyOf("reste", "Claude"));

        button(copyOf("reste", "Claude").text, "Revenir à cette version").clicked();
        awaitText("Revenir à cette version de «\u00A0reste\u00A0»\u00A0?");
        accept("NOUVELLE RÉVISION");
        compare(fixture.bytes("codex/reste/SKILL.md"), fixture.bytesOfText("retrouvé"));
        tryVerify(() => all(/^reste, Copie de Claude/).length === 0);

        button(copyOf("reste", "Codex").text, "Restaurer comme nouvelle compétence…").clicked();
        awaitText("Une compétence de la bibliothèque porte cet identifiant.");
        verify(!control("Restaurer la copie").enabled);
        retype("Identifiant", "encore");
        click("Restaurer la copie");
        awaitText("RESTAURÉE");
        compare(fixture.bytes("claude/encore/SKILL.md"), fixture.bytesOfText("autre\n"));

        copyOf("audit", "Codex").forceActiveFocus();
        press(Qt.Key_Delete, "Supprimer définitivement cette copie de «\u00A0audit\u00A0»\u00A0?");
        accept("SUPPRIMÉE");
        verify(copyOf("audit", "Claude"));
        tryVerify(() => all(/^audit, Copie de Codex/).length === 0);
        awaitGone("SUPPRIMÉE");

        copyOf("audit", "Claude").forceActiveFocus();
        press(Qt.Key_Delete, "Supprimer définitivement cette copie de «\u00A0audit\u00A0»\u00A0?");
        accept("SUPPRIMÉE");
        awaitGone("Copies mises de côté");
        tryVerify(() => list("Corbeille").activeFocus);
    }

    function test_copies_set_aside_that_can_not_be_read() {
        openTrash(["audit"]);
        clickUntil("Afficher les copies", /^2 copies, /);
        fixture.remove("workspace/.vornel/recovery");
        fixture.write("workspace/.vornel/recovery", "pas un dossier");
        reload();
        awaitText(/^Elles n’ont pas pu être lues\. /);
        verify(copyOf("audit", "Claude"), "they are shown as they were");
    }
}
