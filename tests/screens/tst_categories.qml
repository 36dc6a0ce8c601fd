import QtQuick
import VORNELApp

ScreenTest {
    id: test

    name: "Categories"

    /** The sheet over a library of three skills, two of them in "design". */
    function openManager() {
        openShell(["audit"]);
        fixture.create("affiche", "design", Vornel.Maturity.draft);
        fixture.create("logo", "design", Vornel.Maturity.draft);
        settle();
        clickUntil("Gérer les catégories", "Fermer");
        wait(0);
    }
    function row(name) {
        const found = all(name).filter(item => item.deletionAsked !== undefined);
        compare(found.length, 1, name);
        return found[0];
    }
    function edit(name) {
        mouseClick(row(name));
        awaitText("CATÉGORIE");
    }
    function begin() {
        clickUntil("Nouvelle", "NOUVELLE CATÉGORIE");
    }
    function awaitList() {
        awaitText("Fermer");
    }
    function category(name) {
        return model.overview.categories.find(category => category.name === name);
    }

    function test_list() {
        openManager();
        compare(row("Autre, 1 compétence").Accessible.description, "Catégorie par défaut");
        verify(row("Développement, 0 compétences").activeFocus);
        press(Qt.Key_Down, Qt.Key_Down, Qt.Key_Down);
        verify(row("Design, 2 compétences").activeFocus);
        press(Qt.Key_Return, "CATÉGORIE");
        verify(control("Nom").activeFocus && control("Nom").text === "Design");
        press(Qt.Key_Escape);
        awaitList();
        verify(row("Design, 2 compétences").activeFocus, "the list is as it was left");

        edit("Design, 2 compétences");
        type("x");
        press(Qt.Key_Escape, "Abandonner la saisie\u00a0?", Qt.Key_Escape);
        awaitGone("Abandonner");
        compare(control("Nom").text, "Designx");
        click("Annuler", "Abandonner");
        awaitGone("Abandonner");
        awaitList();
        verify(category("Design"));
        edit("Design, 2 compétences");
        compare(control("Nom").text, "Design");
        press(Qt.Key_Escape);
        awaitList();
        press(Qt.Key_Escape);
        awaitGone("Fermer");
    }

    function test_creation() {
        openManager();
        begin();
        verify(shows("Sans nom") && !shows("Supprimer") && !control("Créer").enabled);
        press(Qt.Key_Tab);
        verify(control("Cyan").activeFocus);
        press(Qt.Key_Left);
        verify(control("Cyan").checked);
        press(Qt.Key_Right, Qt.Key_Down);
        verify(control("Pervenche").checked && control("Pervenche").activeFocus);
        press(Qt.Key_Tab);
        verify(control("Choisir une autre couleur").activeFocus, "the palette is one stop");
        click("Violet");
        verify(control("Violet").checked && !control("Pervenche").checked);

        retype("Nom", "design");
        awaitText("Une catégorie porte déjà ce nom.");
        verify(!control("Créer").enabled);
        retype("Nom", "Recherche");
        verify(!shows("Une catégorie porte déjà ce nom."));
        press(Qt.Key_Return, "CATÉGORIE CRÉÉE");
        verify(!shows("Une catégorie porte déjà ce nom."), "not by itself");
        awaitGone("NOUVELLE CATÉGORIE");
        compare(category("Recherche").colorHex, "B071FF");
        clickUntil("Nouvelle catégorie", "NOUVELLE CATÉGORIE");
        verify(control("Nom").activeFocus && control("Nom").text === "");
    }

    function test_change() {
        openManager();
        edit("Design, 2 compétences");
        verify(!control("Enregistrer").enabled, "nothing has changed");
        press(Qt.Key_End);
        type("x");
        verify(control("Enregistrer").enabled);
        press(Qt.Key_Backspace);
        verify(!control("Enregistrer").enabled);
        retype("Nom", "x".repeat(41));
        awaitText("Le nom dépasse 40 caractères.");
        press(Qt.Key_Return);
        verify(!control("Enregistrer").enabled && !model.isBusy);
        retype("Nom", "design");
        verify(!shows("Une catégorie porte déjà ce nom."), "it is its own");
        retype("Nom", "autre");
        awaitText("Une catégorie porte déjà ce nom.");
        verify(!control("Enregistrer").enabled);
        retype("Nom", "Graphisme");
        press(Qt.Key_Return, "CATÉGORIE MODIFIÉE");
        awaitList();
        compare(category("Graphisme").id, "design");
        verify(row("Graphisme, 2 compétences").activeFocus);
    }

    function test_deletion_moves_the_skills() {
        openManager();
        edit("Design, 2 compétences");
        clickUntil("Supprimer", "Supprimer « Design » ?");
        verifyShown("2 compétences seront déplacées dans Autre.");
        press(Qt.Key_Return);
        awaitGone("Supprimer « Design » ?");
        verify(category("Design"), "the way back has the keyboard");
        click("Supprimer");
        accept("CATÉGORIE SUPPRIMÉE");
        awaitList();
        verify(!category("Design"));
        compare(model.overview.skills.map(skill => skill.category), ["other", "other", "other"]);
        awaitText("Autre, 3 compétences");
    }

    function test_deletion_from_the_list() {
        openManager();
        fixture.createCategoryElsewhere("Recherche");
        reload();
        press(Qt.Key_End, Qt.Key_Delete, "Supprimer « Recherche » ?");
        accept();
        tryVerify(() => row("Autre, 1 compétence").activeFocus, 1000, "the last row is gone");
        press(Qt.Key_Home, Qt.Key_Delete, "Supprimer « Développement » ?");
        verifyShown("Cette catégorie sera supprimée.");
        press(Qt.Key_Tab, Qt.Key_Return, "CATÉGORIE SUPPRIMÉE");
        awaitGone("Annuler");
        verify(!category("Développement"));
        tryVerify(() => row("Qualité, 0 compétences").activeFocus);

        press(...Array(4).fill(Qt.Key_Down));
        verify(row("Autre, 1 compétence").activeFocus);
        press(Qt.Key_Delete);
        wait(50);
        verify(!shows("Annuler"), "the default category stays");
        press(Qt.Key_Return, "CATÉGORIE");
        verify(!shows("Supprimer"));
    }

    function test_refused_change() {
        openManager();
        edit("Design, 2 compétences");
        retype("Nom", "Recherche");
        fixture.createCategoryElsewhere("recherche");
        press(Qt.Key_Return, "Une catégorie porte déjà ce nom.");
        tryVerify(() => !shows("Fermer"), 1000, "it is told at the field alone");
        verify(!control("Enregistrer").enabled);
        type("s");
        awaitGone("Une catégorie porte déjà ce nom.");
        verify(!shows("Fermer"));
        press(Qt.Key_Return);
        awaitList();
        verify(category("Recherches"));

        edit("Recherches, 2 compétences");
        type("x");
        fixture.write("workspace/.vornel/categories.json", "{");
        press(Qt.Key_Return, /Le catalogue de catégories est invalide/);
        compare(model.errorMessage, "", "it is told on the sheet alone");
        compare(control("Nom").text, "Recherchesx", "what was typed stays");
        compare(control("Nom").Accessible.description, "De 1 à 40 caractères.", "it isn't the name's fault");
        click("Fermer");
        awaitGone("Fermer");
        verify(control("Nom").activeFocus);
    }

    function test_no_leaving_while_it_is_changed() {
        openManager();
        edit("Design, 2 compétences");
        type("x");
        fixture.holdWorkspace();
        press(Qt.Key_Return);
        tryVerify(() => model.isWorking);
        press(Qt.Key_Escape);
        verify(!shows("Abandonner"), "what was asked for can't be taken back");
        verify(!control("Annuler").enabled);
        fixture.releaseWorkspace();
        awaitList();
        verify(category("Designx"));

        press(Qt.Key_Delete, "Supprimer « Designx » ?");
        fixture.holdWorkspace();
        click("Supprimer");
        tryVerify(() => model.isWorking && !shows("Annuler"));
        press(Qt.Key_Escape);
        verify(!control("Fermer").enabled);
        fixture.write("workspace/.vornel/categories.json", "{");
        fixture.releaseWorkspace();
        awaitText(/Le catalogue de catégories est invalide/);
        compare(model.errorMessage, "");
        verify(category("Designx"));
    }

    function test_free_color() {
        openManager();
        edit("Opérations, 0 compétences");
        verify(control("Autre couleur, FF571A").checked, "a colour that isn't in the palette");
        clickUntil("Choisir une autre couleur", "Choisir");
        verify(control("Code hexadécimal").activeFocus && control("Code hexadécimal").text === "FF571A");
        retype("Code hexadécimal", "12");
        awaitText("Six chiffres, de 0 à 9 ou de A à F");
        verify(!control("Choisir").enabled);
        type("ab9f");
        tryVerify(() => control("Choisir").enabled);
        verifyShown("Couleur choisie, 12AB9F");
        press(Qt.Key_Return);
        awaitGone("Choisir");
        verify(control("Autre couleur, 12AB9F").checked);

        clickUntil("Choisir une autre couleur", "Choisir");
        retype("Code hexadécimal", "FF0000");
        for (const [axis, key, steps, hex] of [
            ["hue", Qt.Key_Right, 120, "00FF00"], ["saturation", Qt.Key_Left, 100, "FFFFFF"], ["brightness", Qt.Key_Left, 100, "000000"]
        ]) {
            press(Qt.Key_Tab, ...Array(steps).fill(key));
            compare(control("Code hexadécimal").text, hex, axis);
        }
        press(Qt.Key_Escape);
        awaitGone("Choisir");
        verify(control("Autre couleur, 12AB9F").checked, "Esc closes one thing at a time, and changes nothing");
        clickUntil("Enregistrer", "CATÉGORIE MODIFIÉE");
        compare(category("Opérations").colorHex, "12AB9F");
    }
}
