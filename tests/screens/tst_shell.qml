import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

ScreenTest {
    name: "Shell"

    function test_a_failed_reading_leaves_nothing_green() {
        openShell(["audit", "notes"]);
        fixture.remove("workspace/skills/notes/vornel.json");
        click("Actualiser");
        awaitText("Lecture impossible");
        verify(model.errorMessage.includes("Compétence concernée\u00A0: «\u00A0notes\u00A0»"));
        tryVerify(() => control("audit").Accessible.description.includes("inconnu"));
        click("À réparer");
        awaitText("L’état des copies n’est pas connu. «\u00a0Actualiser\u00a0» (F5) relit les dossiers.");
        verify(!shows("Tout est synchronisé"));
        click("Bibliothèque");
        fixture.remove("workspace/skills/notes");
        click("Actualiser");
        awaitText("Tout est à jour");
        tryVerify(() => control("audit").Accessible.description.includes("à jour"));
    }

    function test_sidebar() {
        openShell(["audit", "notes"]);
        verify(shows("VORNEL"));
        verify(shows("Tout est à jour"));
        fixture.remove("codex/audit");
        click("Actualiser");
        awaitText("Attention requise");

        click("À réparer");
        tryVerify(() => shows("audit") && !shows("notes"));
        verify(control("À réparer").checked);
        keyClick(Qt.Key_Down);
        verify(control("Corbeille").activeFocus);
        keyClick(Qt.Key_Return);
        awaitText("La corbeille est vide");
    }

    function test_search() {
        openShell(["audit", "notes"]);
        keyClick(Qt.Key_F, Qt.ControlModifier);
        const field = control("Rechercher une compétence");
        verify(field.activeFocus);
        for (const letter of "NOT")
            keyClick(letter);
        compare(fixture.model.searchText, "NOT");
        tryVerify(() => shows("notes") && !shows("audit"));
        keyClick("x");
        awaitText("Aucun résultat");
        click("Effacer");
        compare(fixture.model.searchText, "");
        awaitText("audit");
        verify(!shows("Effacer"));
        fixture.model.searchText = "aud";
        compare(field.text, "aud", "the field follows the model");
        keyClick(Qt.Key_Escape);
        compare(fixture.model.searchText, "");

        type("aud");
        fixture.model.selectSkill(fixture.idOf("audit"));
        awaitText("INSTRUCTIONS");
        verify(!shows("Rechercher une compétence"), "a skill has a search of its own");
        verify(control("Instructions de la compétence").activeFocus);
        keyClick(Qt.Key_Escape);
        awaitText("audit");
        compare(fixture.model.searchText, "aud", "the list is as it was left");
        fixture.trash(["notes"]);
        settle();
        click("Corbeille");
        awaitText("notes");
        verify(shows("Rechercher dans la corbeille"));
        click("À réparer");
        awaitText("Rechercher dans «\u00a0À réparer\u00a0»");
    }

    function test_the_keyboard_goes_from_the_search_to_its_results_and_back() {
        openShell(["audit", "notes", "plan"]);
        function enter(key, name) {
            keyClick(Qt.Key_F, Qt.ControlModifier);
            const field = root.Window.activeFocusItem;
            press(key);
            compare(focusedName(), name);
            press(Qt.Key_Up);
            verify(field.activeFocus);
            press(key);
        }
        enter(Qt.Key_Down, "audit");
        press(Qt.Key_End);
        enter(Qt.Key_Return, "audit");
        keyClick(Qt.Key_F, Qt.ControlModifier);
        type("plan");
        press(Qt.Key_Return);
        compare(focusedName(), "plan");
        keyClick(Qt.Key_F, Qt.ControlModifier);
        type("introuvable");
        press(Qt.Key_Down);
        verify(control("Rechercher une compétence").activeFocus, "there is nothing to go to");

        fixture.remove("codex/audit");
        fixture.remove("codex/plan");
        fixture.trash(["notes"]);
        model.reload();
        settle();
        click("À réparer");
        awaitText("plan");
        list("À réparer").moveTo(1);
        enter(Qt.Key_Down, "audit");
        click("Corbeille");
        awaitText("notes");
        enter(Qt.Key_Enter, "notes");
    }

    function test_skill() {
        openShell(["audit", "notes"]);
        verify(!control("Synchroniser").enabled);
        fixture.holdWorkspace();
        click("notes");
        awaitText("OUVERTURE");
        verify(shows("Ouverture de la compétence"));
        fixture.releaseWorkspace();
        awaitText("Retour à la bibliothèque");
        verify(!shows("OUVERTURE"));
        keyClick(Qt.Key_Escape);
        awaitText("audit");
    }

    function test_confirmations() {
        openShell(["audit"]);
        fixture.model.emptyTrash();
        tryVerify(() => all("CORBEILLE VIDÉE").length === 1);
        const first = Date.now();
        wait(1650); // so that the first leaves while the second still comes
        fixture.model.emptyTrash();
        tryVerify(() => all("CORBEILLE VIDÉE").length === 2);
        const second = Date.now();
        tryVerify(() => all("CORBEILLE VIDÉE").length === 1, 3000);
        fuzzyCompare(Date.now() - first, 1800 + 220, 300);
        tryCompare(all("CORBEILLE VIDÉE")[0], "opacity", 1, 500);
        compare(fixture.model.transientMessage, "CORBEILLE VIDÉE");
        tryVerify(() => all("CORBEILLE VIDÉE").length === 0, 3000);
        fuzzyCompare(Date.now() - second, 1800 + 220, 300);
        compare(fixture.model.transientMessage, "");
    }

    /** The area of an item in the window. */
    function area(item) {
        return item.mapToItem(null, Qt.rect(0, 0, item.width, item.height));
    }
    function test_confirmations_stand_clear_and_above_sheets() {
        openShell(["audit", "notes", "plan"]);
        root.width = 960;
        root.height = 620;
        for (const name of ["Corbeille", "Bibliothèque", "audit", "Gérer les catégories"]) {
            if (name === "Gérer les catégories")
                model.closeSkill();
            click(name);
            settle();
            model.emptyTrash();
            awaitText("CORBEILLE VIDÉE");
            wait(Motion.normal); // in which it comes
            const capsule = area(all("CORBEILLE VIDÉE")[0]);
            const covered = all(/./).filter(item => item.text !== undefined && item.text !== "CORBEILLE VIDÉE").filter(item => {
                const other = area(item);
                return other.left < capsule.right && capsule.left < other.right && other.top < capsule.bottom && capsule.top < other.bottom;
            });
            compare(covered.map(item => item.text).join(), "", name);
            if (name === "Gérer les catégories") {
                const dot = grabImage(root.Window.contentItem).pixel(capsule.x + Metrics.medium + 4, capsule.y + capsule.height / 2);
                compare(String(dot), String(Colors.success));
            }
            tryVerify(() => !shows("CORBEILLE VIDÉE"));
        }
    }

    function test_no_hint_comes_over_a_menu() {
        openShell(["audit"]);
        root.width = 960;
        const filter = control("Filtrer par état");
        const hints = () => Array.from(T.Overlay.overlay.children).filter(popup => popup.visible && Array.from(popup.children).some(item => item.text === filter.name));
        waitForItemPolished(filter.parent);
        mouseMove(filter, 10, 10);
        mouseMove(filter, 12, 12);
        tryVerify(() => hints().length === 1);
        mouseMove(root, 480, 300);
        tryVerify(() => hints().length === 0);
        mouseMove(filter, 12, 12); // and a click before the hint comes
        click("Filtrer par état");
        awaitText("Tous les états");
        wait(800);
        compare(hints().length, 0);
        press(Qt.Key_Escape);
    }

    function test_error() {
        openShell(["audit"]);
        fixture.model.restore(fixture.idOf("audit"));
        settle();
        awaitText(fixture.model.errorMessage);
        control("Fermer").forceActiveFocus();
        keyClick(Qt.Key_Return);
        compare(fixture.model.errorMessage, "");
        verify(!shows("Fermer"));
        verify(all("audit").some(item => item.activeFocus), "the keyboard goes back to the list");
    }

    function test_leaving_while_a_skill_loads() {
        openShell(["audit"]);
        fixture.holdWorkspace();
        fixture.model.selectSkill(fixture.idOf("audit"));
        click("Corbeille");
        fixture.releaseWorkspace();
        settle();
        verify(!shows("Retour à la bibliothèque"));
        verify(shows("La corbeille est vide"));
    }

    function test_a_window_that_is_too_small_is_scrolled() {
        const window = openWindow(["audit"]);
        for (let change = 0; change < 2; ++change)
            ignoreWarning("This plugin does not support propagateSizeHints()");
        window.minimumHeight = window.minimumWidth = 0; // as a tiling window manager takes it
        window.width = 500;
        window.height = 400;
        tryVerify(() => window.width === 500);
        const reading = control("Actualiser");
        const right = () => reading.mapToItem(null, reading.width, 0).x;
        verify(right() > 700, "nothing is squeezed");
        mouseDrag(window.contentItem, 480, 300, -400, 0, Qt.LeftButton, Qt.NoModifier, 50);
        mouseDrag(window.contentItem, 480, 300, -400, 0, Qt.LeftButton, Qt.NoModifier, 50);
        tryVerify(() => right() <= 500);
        control("Gérer les catégories").forceActiveFocus(Qt.TabFocusReason);
        const bottom = () => control("Gérer les catégories").mapToItem(null, 0, 36).y;
        verify(bottom() <= 400, "what has the keyboard is in view");
        window.close();
        awaitClosed(window);
    }

    function test_closing_waits() {
        const window = openWindow(["audit", "notes"]);
        fixture.holdWorkspace();
        fixture.model.reload();
        window.close();
        wait(100);
        verify(fixture.model.isBusy && window.visible);
        fixture.releaseWorkspace();
        awaitClosed(window);
        verify(!fixture.model.isBusy);
    }

    function test_closing_stops_what_is_done_to_several() {
        const window = openWindow(["a", "b", "c"]);
        for (const slug of ["a", "b", "c"])
            fixture.remove("codex/" + slug);
        fixture.model.selectedDestination = AppStates.Destination.needsAttention;
        click("Actualiser");
        tryVerify(() => fixture.model.needsAttentionCount === 3 && !fixture.model.isBusy);
        click("Tout synchroniser");
        tryVerify(() => window.activeFocusItem.Accessible.name === "Annuler");
        fixture.holdWorkspace();
        keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_Return);
        tryVerify(() => fixture.model.batch.isRunning);
        window.close();
        verify(window.visible);
        fixture.releaseWorkspace();
        awaitClosed(window);
        compare(fixture.model.batch.doneCount, 1);
    }

    function test_unsaved_texts_of_skills_that_are_gone() {
        openShell(["audit", "notes", "plan"]);
        for (const slug of ["audit", "notes"])
            fixture.keep(slug, "brouillon de " + slug);
        fixture.trash(["audit", "notes"]);
        awaitText(/^Un texte de «\u00a0.*\u00a0» n’a pas été enregistré\./);
        settle();
        fixture.model.restore(fixture.trashedIdOf("notes"));
        settle();
        awaitText(/^Un texte de «\u00a0audit\u00a0» n’a pas été enregistré\..* Il est gardé ici\u00a0: .*\.json$/);
        click("Copier le texte");
        tryVerify(() => fixture.clipboard() === "brouillon de audit");
        fixture.emptyTrashElsewhere();
        fixture.model.reload();
        awaitText(/^Un texte d’une compétence supprimée n’a pas été enregistré\./);
        control("Plus tard").forceActiveFocus();
        keyClick(Qt.Key_Escape);
        verify(!control("Plus tard").activeFocus && shows("Plus tard"), "Esc turns from the notice");
        click("Plus tard");
        tryVerify(() => !shows("Plus tard"));

        close();
        fixture.restart();
        open();
        awaitText(/^Un texte d’une compétence supprimée/);
        click("Supprimer le texte");
        awaitText("Supprimer ce texte non enregistré\u00a0?");
        press(Qt.Key_Tab, Qt.Key_Return);
        tryVerify(() => !shows("Plus tard"));
        compare(fixture.keptTexts(), ["brouillon de notes"]);
        fixture.model.selectSkill(fixture.idOf("notes"));
        awaitText("Garder");
    }

    function test_only_the_text_that_was_asked_about_is_deleted() {
        openShell(["audit", "notes", "plan"]);
        for (const slug of ["audit", "notes"])
            fixture.keep(slug, "brouillon de " + slug);
        fixture.trash(["audit", "notes"]);
        awaitText(/^Un texte de «/);
        settle();
        const asked = shows(/^Un texte de «\u00a0audit/) ? "audit" : "notes";
        click("Supprimer le texte");
        tryVerify(() => focusedName() === "Annuler");
        fixture.model.restore(fixture.trashedIdOf(asked));
        tryVerify(() => !shows(RegExp("^Un texte de «\u00a0" + asked)));
        press(Qt.Key_Tab, Qt.Key_Return);
        tryVerify(() => !shows("Annuler"));
        fixture.keep("plan", "brouillon de plan"); // after whatever was to be deleted
        compare(fixture.keptTexts().length, 3);
    }

    function test_unsaved_text_of_a_skill_that_can_not_be_opened() {
        openShell(["audit"]);
        fixture.keep("audit", "brouillon");
        fixture.remove("workspace/skills/audit/SKILL.md");
        fixture.model.selectSkill(fixture.idOf("audit"));
        awaitText(/^Un texte de «\u00a0audit\u00a0» n’a pas été enregistré\. L’éditeur le reprendra dès que/);
        click("Copier le texte");
        tryVerify(() => fixture.clipboard() === "brouillon");
        fixture.write("workspace/skills/audit/SKILL.md", "name: audit");
        fixture.model.selectSkill(fixture.idOf("audit"));
        awaitText("Garder");
        tryVerify(() => !shows("Copier le texte"));
    }
}
