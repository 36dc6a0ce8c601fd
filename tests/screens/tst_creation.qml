import QtQuick
import VORNELApp

ScreenTest {
    id: test

    name: "Creation"

    function openSheet(name) {
        openShell(["audit"]);
        begin(name);
    }
    function begin(name) {
        keyClick(Qt.Key_N, Qt.ControlModifier);
        awaitText("Le nom est requis.");
        type(name ?? "");
    }
    function isGone() {
        awaitGone("Identité");
    }
    function created() {
        return model.selectedSkill.manifest;
    }

    function test_everything_typed_is_kept() {
        openSheet();
        verify(control("Nom").activeFocus);
        type("Veille");
        retype("Description courte", "Suivre: les annonces");
        retype("Mots-clés", " veille , , presse,");
        click("Catégorie, Développement", "Connaissance");
        awaitText("Catégorie, Connaissance");
        click("Actif");
        verify(control("Actif").checked && !control("Brouillon").checked);
        clickUntil("Créer", "CRÉÉE");
        isGone();
        compare(created().slug, "veille");
        compare(created().displayName, "Veille");
        compare(created().summary, "Suivre: les annonces");
        verify(model.selectedSkill.skillMD.includes('\ndescription: "Suivre: les annonces"\n'));
        compare(created().tags, ["presse", "veille"]);
        compare(created().category, "knowledge");
        compare(created().maturity, Vornel.Maturity.active);
        compare(root.Window.activeFocusItem.Accessible.name, "Instructions de la compétence");
    }

    function test_identifier_follows_the_name_until_it_is_typed() {
        openSheet();
        verify(!control("Créer").enabled && !shows(/^Utilisez/));
        verify(all("Nouvelle compétence").every(item => item.Accessible.description !== "Formulaire valide"));
        type("Audit 2024 !!");
        tryCompare(control("Identifiant"), "text", "audit-2024");
        verify(all("Nouvelle compétence").some(item => item.Accessible.description === "Formulaire valide"));
        control("Identifiant").forceActiveFocus();
        type("x_");
        awaitText("Utilisez uniquement des lettres, chiffres et tirets.");
        compare(control("Identifiant").Accessible.description, "Utilisez uniquement des lettres, chiffres et tirets.");
        verify(!control("Créer").enabled);
        press(Qt.Key_Backspace, "Prête à être créée.");
        retype("Nom", "Autre");
        compare(control("Identifiant").text, "audit-2024x");
        retype("Identifiant", "a".repeat(81));
        awaitText("L’identifiant dépasse 80 caractères.");
        verify(!control("Créer").enabled);
        retype("Identifiant", "");
        retype("Nom", "Encore");
        compare(control("Identifiant").text, "encore", "once it is emptied");
    }

    function test_taken_identifier() {
        openSheet();
        const taken = "Une compétence porte déjà cet identifiant.";
        type("Audit");
        awaitText(taken);
        verify(!control("Créer").enabled && !shows("Prête à être créée."), "it is told while it is typed");
        fixture.trash(["audit"]);
        awaitText("Une compétence de la corbeille porte déjà cet identifiant.");
        retype("Nom", "Plan");
        tryVerify(() => !shows(/porte déjà/));
        fixture.createElsewhere("plan");
        function reloadOnce() {
            if (model.isWorking)
                return;
            model.isWorkingChanged.disconnect(reloadOnce);
            model.reload(); // as whatever follows the model may, before the sheet hears of the refusal
        }
        model.isWorkingChanged.connect(reloadOnce);
        press(Qt.Key_Return, taken);
        compare(model.errorMessage, "", "it is told at the field alone");
        compare(control("Identifiant").Accessible.description, taken);
        verify(!shows("Fermer") && !shows("Prête à être créée."));
        compare(control("Nom").text, "Plan", "what was typed stays");
        verify(control("Identifiant").activeFocus, "the keyboard is where the mending is");
        retype("Description courte", "Autre chose");
        verify(shows(taken));
        control("Identifiant").forceActiveFocus();
        press(Qt.Key_End);
        type("2");
        tryVerify(() => !shows(taken));
        press(Qt.Key_Return, "CRÉÉE");
        verify(!shows(taken), "not by itself");
        isGone();
        compare(created().slug, "plan2");
    }

    function test_a_folder_of_others_is_replaced_only_when_told() {
        fixture.write("codex/veille/notes.txt", "à un autre");
        openSheet("Veille");
        awaitText("Codex a déjà un dossier de ce nom.");
        fixture.write("codex/fichier", "à un autre");
        retype("Identifiant", "fichier");
        awaitText("Ce nom est déjà pris chez Codex.");
        retype("Identifiant", "veille");
        awaitText("Codex a déjà un dossier de ce nom.");
        verify(!shows("Prête à être créée."));
        verify(all("Nouvelle compétence").every(item => item.Accessible.description !== "Formulaire valide"));
        press(Qt.Key_Return, "Le dossier «\u00a0veille\u00a0» existe déjà");
        tryVerify(() => control("Changer d’identifiant").activeFocus);
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        press(Qt.Key_Return);
        verify(fixture.openedFolder.endsWith("/codex/veille"));
        compare(control("Ouvrir le dossier").Accessible.description, fixture.openedFolder);
        press(Qt.Key_Escape);
        tryVerify(() => control("Identifiant").activeFocus && !shows("Remplacer"));
        compare(model.overview.skills.length, 1);
        press(Qt.Key_End);
        type("2");
        awaitText("Prête à être créée.");
        press(Qt.Key_Backspace);
        click("Créer", "Remplacer");
        awaitText("CRÉÉE");
        isGone();
        compare(created().slug, "veille");
        compare(root.Window.activeFocusItem.Accessible.name, "Instructions de la compétence");
    }

    function test_no_question_about_a_sheet_that_is_closed() {
        fixture.write("codex/veille/notes.txt", "à un autre");
        openSheet("Veille");
        awaitText("Codex a déjà un dossier de ce nom.");
        fixture.holdWorkspace();
        press(Qt.Key_Return);
        click("Annuler", "Abandonner");
        isGone();
        fixture.releaseWorkspace();
        model.reload(); // after whatever the sheet has asked for
        settle();
        wait(0);
        verify(!shows("Remplacer"));
    }

    function test_created_though_an_assistant_has_no_copy() {
        openSheet("Veille");
        fixture.remove("codex");
        fixture.write("codex", "un fichier à la place du dossier");
        press(Qt.Key_Return);
        isGone();
        settle();
        verify(model.errorMessage !== "");
        awaitText("Veille");
        all("À réparer").find(item => item.checkable === false).clicked();
        awaitText("À RÉPARER");
        compare(model.errorMessage, "");
    }

    function test_leaving() {
        openSheet();
        press(Qt.Key_Return);
        verify(shows("Identité"), "nothing to create yet");
        press(Qt.Key_Escape);
        isGone();

        begin("Veille");
        press(Qt.Key_Escape, "Abandonner la saisie\u00a0?", Qt.Key_Return);
        awaitGone("Abandonner");
        verify(control("Nom").activeFocus, "the way back has the keyboard");
        clickUntil("Annuler", "Abandonner");
        click("Abandonner");
        isGone();

        begin();
        compare(control("Nom").text, "");
        compare(control("Identifiant").text, "");
    }

    function test_no_leaving_while_it_is_created() {
        openSheet("Veille");
        fixture.holdWorkspace(true);
        press(Qt.Key_Enter);
        tryVerify(() => model.isWorking);
        press(Qt.Key_Escape);
        verify(!shows("Abandonner"), "what was asked for can't be taken back");
        verify(!control("Annuler").enabled);
        fixture.write("workspace/.vornel/categories.json", "{");
        fixture.releaseWorkspace();
        awaitText(/Le catalogue de catégories est invalide/);
        verify(!shows("Une compétence porte déjà cet identifiant."));
        click("Fermer");
        awaitGone("Fermer");
        verify(control("Nom").activeFocus);
        press(Qt.Key_Escape, "Abandonner");
    }

    function test_category_without_the_usual_one() {
        openShell(["audit"]);
        fixture.deleteCategory("development");
        keyClick(Qt.Key_N, Qt.ControlModifier);
        awaitText("Catégorie, Autre");
        type("Veille");
        press(Qt.Key_Return, "CRÉÉE");
        compare(created().category, "other");
        isGone();
        model.closeSkill();
        click("Design, 0 compétences");
        keyClick(Qt.Key_N, Qt.ControlModifier);
        awaitText("Catégorie, Design"); // the one that is chosen in the rail
    }

    function test_by_keyboard() {
        openSheet("Un nom bien plus long que le champ dans lequel il faut pourtant tout entier");
        const field = control("Nom");
        verify(field.positionToRectangle(0).x < 0, "what is typed is seen");
        for (const next of ["Identifiant", "Description courte", "Mots-clés", "Catégorie, Développement", "Brouillon"]) {
            press(Qt.Key_Tab);
            verify(control(next).activeFocus, next);
        }
        verify(field.positionToRectangle(0).x >= 0, "a field that is left shows its beginning");
        press(Qt.Key_Left);
        verify(control("Brouillon").checked);
        press(Qt.Key_Right, Qt.Key_Down);
        verify(control("Actif").checked && control("Actif").activeFocus);
        press(Qt.Key_Tab);
        verify(control("Annuler").activeFocus, "the choices are one stop");
        keyClick(Qt.Key_Tab, Qt.ShiftModifier);
        verify(control("Actif").activeFocus);
        press(Qt.Key_Tab, Qt.Key_Tab);
        verify(control("Créer").activeFocus);
        field.forceActiveFocus(Qt.OtherFocusReason);
        type("!");
        verify(field.text.endsWith("entier!"), "where it was left");
    }
}
