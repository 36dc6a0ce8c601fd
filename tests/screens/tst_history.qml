import QtQuick
import VORNELApp

/** What was written is seen, compared and brought back, and nothing that is edited is lost over it. */
EditorTest {
    id: test

    name: "History"

    function openHistory() {
        keyClick(Qt.Key_H, Qt.ControlModifier);
        awaitText("Versions", /version actuelle$/);
        tryVerify(() => focusedName().endsWith("version actuelle"));
    }
    /** Saves these texts, one after another. */
    function saveAll(...texts) {
        for (const text of texts) {
            textArea().selectAll();
            textArea().remove(0, textArea().length);
            textArea().insert(0, text);
            save();
        }
    }

    function test_looking() {
        openSkill("un\n");
        saveAll("un\ndeux\n", "un\ndeux\ntrois\n");
        textArea().forceActiveFocus();
        openHistory();
        verifyShown("Instructions de la compétence");
        press(Qt.Key_Down);
        awaitText("SKILL.md, modifié", "trois");
        compare(all("trois")[0].sign, "+");
        verify(!shows("Instructions de la compétence"));
        click("Depuis la précédente");
        awaitText("deux");
        compare(all("deux")[0].sign, "+");
        press(Qt.Key_Escape);
        awaitGone("Versions");
        tryVerify(() => textArea().activeFocus);
        verifyShown("Bibliothèque");
    }

    function test_a_quick_walk_shows_what_it_ends_at() {
        openSkill("0\n");
        for (let number = 1; number < 12; ++number)
            saveElsewhere(number + "\n");
        reload();
        openHistory();
        fixture.holdWorkspace();
        for (let number = 0; number < 10; ++number)
            keyClick(Qt.Key_Down);
        fixture.releaseWorkspace();
        tryVerify(() => focusedName().endsWith("révision 2"));
        awaitText("1", "11");
        saveElsewhere("12\n");
        reload();
        awaitText("12", /révision 13, version actuelle$/);
        verify(focusedName().endsWith("révision 2"), "what others save moves nothing");
    }

    function test_returning() {
        openSkill("un\n");
        saveAll("deux\n");
        openHistory();
        press(Qt.Key_Down);
        tryVerify(() => control("Copier le texte").enabled);
        click("Copier le texte");
        awaitText("TEXTE COPIÉ");
        compare(fixture.clipboard(), "un\n");
        click("Revenir à cette version");
        awaitText("VERSION RÉTABLIE", /révision 3, version actuelle$/);
        settle();
        verifyStored("un\n");
        press(Qt.Key_Escape);
        tryVerify(() => text() === "un\n");
    }

    function test_a_version_that_hides_the_text_keeps_the_keyboard_from_it() {
        openSkill("un\n");
        saveAll("deux\n");
        typeAt(0, "x");
        openHistory();
        press(Qt.Key_Down);
        awaitGone("Instructions de la compétence");
        keyClick(Qt.Key_F, Qt.ControlModifier);
        awaitText("Instructions de la compétence", "Rechercher dans le texte");
        press(Qt.Key_Escape);

        list("Versions").forceActiveFocus();
        press(Qt.Key_Home, Qt.Key_Down);
        awaitGone("Instructions de la compétence");
        clickUntil("Enregistrer", "ENREGISTRÉ");
        verify(textArea().activeFocus);
        settle();
        verifyStored("xdeux\n");
    }

    function test_what_changes_nothing_is_not_offered() {
        openSkill("un\n");
        writeEverywhere("dossier/notes.md", "a");
        reload();
        click("Prendre en compte");
        awaitText("PRISE EN COMPTE");
        settle();
        saveAll("deux\n", "un\n");
        openHistory();
        press(Qt.Key_Down, Qt.Key_Down);
        tryVerify(() => focusedName().endsWith("révision 2"));
        awaitText("dossier/notes.md, identique");
        verify(!control("Revenir à cette version").enabled && !control("Reprendre ce fichier").enabled);
        press(Qt.Key_Up);
        tryVerify(() => control("Reprendre ce fichier").enabled);
        mouseClick(all("dossier/notes.md, identique")[0]);
        tryVerify(() => !control("Reprendre ce fichier").enabled);
        mouseClick(all("SKILL.md, modifié")[0]);
        click("Reprendre ce fichier");
        awaitText("FICHIER REPRIS", "SKILL.md, identique");
        settle();
        verifyStored("deux\n");
    }

    function test_unsaved_edits_and_edited_copies_stay() {
        openSkill("un\n");
        saveAll("deux\n");
        typeAt(0, "x");
        fixture.write("codex/audit/SKILL.md", "de Codex\n");
        openHistory();
        press(Qt.Key_Down);
        awaitText(/maintenant.» est le texte enregistré\.$/);
        click("Revenir à cette version");
        awaitText("Différences avec les copies", "La version choisie dans l’historique remplace les copies. Ce qu’elle remplace reste dans l’historique.");
        all("Revenir à cette version").find(isInSheet).clicked();
        awaitGone("Différences avec les copies");
        awaitText("VERSION RÉTABLIE", "Recharger");
        settle();
        verifyStored("un\n");
        awaitText(/^modifié par Codex, remplacé aujourd’hui à/);
        awaitGone("Différences avec les copies");
        click("Fermer l’historique");
        awaitGone("Versions");
        compare(text(), "xdeux\n");
    }
    function isInSheet(item) {
        for (let ancestor = item; ancestor !== null; ancestor = ancestor.parent) {
            if (ancestor === root)
                return false;
        }
        return true;
    }

    function test_one_file() {
        openSkill("un\n");
        writeEverywhere("notes.md", "a");
        writeEverywhere("rest.md", "b");
        click("Actualiser");
        settle();
        click("Prendre en compte");
        awaitText("PRISE EN COMPTE");
        settle();
        saveAll("deux\n");
        openHistory();
        press(Qt.Key_End);
        awaitText("notes.md, ajouté");
        mouseClick(all("notes.md, ajouté")[0]);
        click("Retirer ce fichier");
        awaitText("FICHIER RETIRÉ");
        settle();
        compare(fixture.bytes("codex/audit/rest.md"), fixture.bytesOfText("b"));
        verifyStored("deux\n");
    }

    function test_freeing_room() {
        openSkill("un\n");
        saveAll("deux\n", "trois\n", "quatre\n");
        click("Bibliothèque");
        model.selectedDestination = AppStates.Destination.trash;
        awaitText(/^Historique.: \d+ versions, /);
        click("Libérer de la place…");
        awaitText("Aucune version ne serait supprimée.");
        retype("Versions à garder pour chaque compétence", "1");
        retype("Jours pendant lesquels garder toutes les autres", "x");
        awaitText("Tapez un nombre.");
        retype("Jours pendant lesquels garder toutes les autres", "0");
        awaitText(/^3 versions seraient supprimées, ce qui libérerait /);
        saveElsewhere("cinq\n");
        model.refreshOverview();
        awaitText(/^4 versions seraient supprimées, ce qui libérerait /);
        click("Supprimer ces versions…");
        accept("HISTORIQUE ALLÉGÉ");
        settle();
        compare(fixture.history("audit").length, 2, "the last two revisions always stay");
    }
}
