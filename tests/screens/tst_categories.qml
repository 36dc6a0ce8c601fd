import QtQuick
import VORNELApp
import VORNELDesignSystem

ScreenTest {
    id: test

    name: "Categories"

    /** The sheet over a library of three skills, two of them in "design". */
    function openManager() {
        openShell(["audit"]);
        fixture.create("affiche", "design", Vornel.Maturity.draft);
        fixture.create("logo", "design", Vornel.Maturity.draft);
        settle();
        click("Gérer les catégories");
        awaitText("Fermer");
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
    function awaitList() {
        tryVerify(() => shows("Fermer"));
    }
    function category(name) {
        return model.overview.categories.find(category => category.name === name);
    }

    function test_list() {
        openManager();
        compare(row("Autre, 1 compétence").Accessible.description, "Catégorie par défaut");
        verify(row("Développement, 0 compétences").activeFocus);
        for (let place = 0; place < 3; ++place)
            keyClick(Qt.Key_Down);
        verify(row("Design, 2 compétences").activeFocus);
        keyClick(Qt.Key_Return);
        awaitText("CATÉGORIE");
        compare(control("Nom").text, "Design");
        verify(control("Nom").activeFocus);
        keyClick(Qt.Key_Escape);
        awaitList();
        verify(row("Design, 2 compétences").activeFocus, "the list is as it was left");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !shows("Fermer"));
    }

    function test_creation() {
        openManager();
        click("Nouvelle");
        awaitText("NOUVELLE CATÉGORIE");
        verify(shows("Sans nom") && !shows("Supprimer"));
        verify(!control("Créer").enabled);
        verify(control("Cyan").checked);
        type("design");
        click("Violet");
        verify(control("Violet").checked && !control("Cyan").checked);
        awaitText("Une catégorie porte déjà ce nom.");
        verify(!control("Créer").enabled);
        retype("Nom", "Recherche");
        verify(!shows("Une catégorie porte déjà ce nom."));
        keyClick(Qt.Key_Return);
        awaitText("CATÉGORIE CRÉÉE");
        verify(!shows("Une catégorie porte déjà ce nom."), "not by itself");
        tryVerify(() => !shows("NOUVELLE CATÉGORIE"));
        compare(category("Recherche").colorHex, "B071FF");
        click("Nouvelle catégorie");
        awaitText("NOUVELLE CATÉGORIE");
        compare(control("Nom").text, "");
        verify(control("Nom").activeFocus);
    }

    function test_change() {
        openManager();
        edit("Design, 2 compétences");
        verify(!control("Enregistrer").enabled, "nothing has changed");
        keyClick(Qt.Key_End);
        type("x");
        verify(control("Enregistrer").enabled);
        keyClick(Qt.Key_Backspace);
        verify(!control("Enregistrer").enabled);
        retype("Nom", "x".repeat(41));
        awaitText("Le nom dépasse 40 caractères.");
        keyClick(Qt.Key_Return);
        verify(!control("Enregistrer").enabled && !model.isBusy);
        retype("Nom", "design");
        verify(!shows("Une catégorie porte déjà ce nom."), "it is its own");
        retype("Nom", "autre");
        awaitText("Une catégorie porte déjà ce nom.");
        verify(!control("Enregistrer").enabled);
        retype("Nom", "Graphisme");
        keyClick(Qt.Key_Return);
        awaitText("CATÉGORIE MODIFIÉE");
        awaitList();
        compare(category("Graphisme").id, "design");
        verify(row("Graphisme, 2 compétences").activeFocus);
    }

    function test_leaving_the_form() {
        openManager();
        edit("Design, 2 compétences");
        type("x");
        keyClick(Qt.Key_Escape);
        awaitText("Abandonner la saisie\u00a0?");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !shows("Abandonner"));
        compare(control("Nom").text, "Designx");
        click("Annuler");
        awaitText("Abandonner");
        click("Abandonner");
        tryVerify(() => !shows("Abandonner"));
        awaitList();
        verify(category("Design"));
        edit("Design, 2 compétences");
        compare(control("Nom").text, "Design");
    }

    function test_deletion_moves_the_skills() {
        openManager();
        edit("Design, 2 compétences");
        click("Supprimer");
        awaitText("Supprimer « Design » ?");
        verify(shows("2 compétences seront déplacées dans Autre."));
        keyClick(Qt.Key_Return);
        tryVerify(() => !shows("Supprimer « Design » ?"));
        verify(category("Design"), "the way back has the keyboard");
        click("Supprimer");
        awaitText("Supprimer « Design » ?");
        keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_Return);
        awaitText("CATÉGORIE SUPPRIMÉE");
        awaitList();
        verify(!category("Design"));
        compare(model.overview.skills.map(skill => skill.category), ["other", "other", "other"]);
        awaitText("Autre, 3 compétences");
    }

    function test_deletion_from_the_list() {
        openManager();
        fixture.createCategoryElsewhere("Recherche");
        model.reload();
        settle();
        press(Qt.Key_End, Qt.Key_Delete);
        awaitText("Supprimer « Recherche » ?");
        accept();
        tryVerify(() => row("Autre, 1 compétence").activeFocus, 1000, "the last row is gone");
        press(Qt.Key_Home, Qt.Key_Delete);
        awaitText("Supprimer « Développement » ?");
        verify(shows("Cette catégorie sera supprimée."));
        keyClick(Qt.Key_Tab);
        keyClick(Qt.Key_Return);
        awaitText("CATÉGORIE SUPPRIMÉE");
        tryVerify(() => !shows("Annuler"));
        verify(!category("Développement"));
        tryVerify(() => row("Qualité, 0 compétences").activeFocus);

        for (let place = 0; place < 4; ++place)
            keyClick(Qt.Key_Down);
        verify(row("Autre, 1 compétence").activeFocus);
        keyClick(Qt.Key_Delete);
        wait(50);
        verify(!shows("Annuler"), "the default category stays");
        keyClick(Qt.Key_Return);
        awaitText("CATÉGORIE");
        verify(!shows("Supprimer"));
    }

    function test_refused_change() {
        openManager();
        edit("Design, 2 compétences");
        type("x");
        fixture.write("workspace/.vornel/categories.json", "{");
        keyClick(Qt.Key_Return);
        awaitText(/Le catalogue de catégories est invalide/);
        compare(model.errorMessage, "", "it is told on the sheet alone");
        compare(control("Nom").text, "Designx", "what was typed stays");
        compare(control("Nom").Accessible.description, "De 1 à 40 caractères.", "it isn't the name's fault");
        click("Fermer");
        tryVerify(() => !shows("Fermer"));
        verify(control("Nom").activeFocus);
    }

    function test_name_taken_elsewhere() {
        openManager();
        edit("Design, 2 compétences");
        retype("Nom", "Recherche");
        fixture.createCategoryElsewhere("recherche");
        keyClick(Qt.Key_Return);
        awaitText("Une catégorie porte déjà ce nom.");
        tryVerify(() => !shows("Fermer"), 1000, "it is told at the field alone");
        verify(!control("Enregistrer").enabled);
        type("s");
        tryVerify(() => !shows("Une catégorie porte déjà ce nom."));
        verify(!shows("Fermer"));
        keyClick(Qt.Key_Return);
        awaitList();
        verify(category("Recherches"));
    }

    function test_no_leaving_while_it_is_changed() {
        openManager();
        edit("Design, 2 compétences");
        type("x");
        fixture.holdWorkspace();
        keyClick(Qt.Key_Return);
        tryVerify(() => model.isWorking);
        keyClick(Qt.Key_Escape);
        verify(!shows("Abandonner"), "what was asked for can't be taken back");
        verify(!control("Annuler").enabled);
        fixture.releaseWorkspace();
        awaitList();
        verify(category("Designx"));

        keyClick(Qt.Key_Delete);
        awaitText("Supprimer « Designx » ?");
        fixture.holdWorkspace();
        click("Supprimer");
        tryVerify(() => model.isWorking && !shows("Annuler"));
        keyClick(Qt.Key_Escape);
        verify(!control("Fermer").enabled);
        fixture.write("workspace/.vornel/categories.json", "{");
        fixture.releaseWorkspace();
        awaitText(/Le catalogue de catégories est invalide/);
        compare(model.errorMessage, "");
        verify(category("Designx"));
    }

    function test_swatches_by_keyboard() {
        openManager();
        click("Nouvelle");
        awaitText("NOUVELLE CATÉGORIE");
        keyClick(Qt.Key_Tab);
        verify(control("Cyan").activeFocus);
        keyClick(Qt.Key_Left);
        verify(control("Cyan").checked);
        keyClick(Qt.Key_Right);
        keyClick(Qt.Key_Down);
        verify(control("Pervenche").checked && control("Pervenche").activeFocus);
        keyClick(Qt.Key_Tab);
        verify(control("Choisir une autre couleur").activeFocus, "the palette is one stop");
    }

    function test_free_color() {
        openManager();
        edit("Opérations, 0 compétences");
        verify(control("Autre couleur, FF571A").checked, "a colour that isn't in the palette");
        click("Choisir une autre couleur");
        awaitText("Choisir");
        const digits = control("Code hexadécimal");
        compare(digits.text, "FF571A");
        verify(digits.activeFocus);
        retype("Code hexadécimal", "12");
        awaitText("Six chiffres, de 0 à 9 ou de A à F");
        verify(!control("Choisir").enabled);
        type("ab9f");
        tryVerify(() => control("Choisir").enabled);
        verify(shows("Couleur choisie, 12AB9F"));
        keyClick(Qt.Key_Return);
        tryVerify(() => !shows("Choisir"));
        verify(control("Autre couleur, 12AB9F").checked);
        click("Enregistrer");
        awaitText("CATÉGORIE MODIFIÉE");
        compare(category("Opérations").colorHex, "12AB9F");
    }

    function test_sliders() {
        openManager();
        click("Nouvelle");
        awaitText("NOUVELLE CATÉGORIE");
        click("Choisir une autre couleur");
        awaitText("Choisir");
        retype("Code hexadécimal", "FF0000");
        keyClick(Qt.Key_Tab);
        for (let step = 0; step < 120; ++step)
            keyClick(Qt.Key_Right);
        compare(control("Code hexadécimal").text, "00FF00", "by the hue");
        keyClick(Qt.Key_Tab);
        for (let step = 0; step < 100; ++step)
            keyClick(Qt.Key_Left);
        compare(control("Code hexadécimal").text, "FFFFFF", "by the saturation");
        keyClick(Qt.Key_Tab);
        for (let step = 0; step < 100; ++step)
            keyClick(Qt.Key_Left);
        compare(control("Code hexadécimal").text, "000000", "by the brightness");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !shows("Choisir"));
        verify(control("Cyan").checked, "Esc closes one thing at a time, and changes nothing");
        verify(shows("NOUVELLE CATÉGORIE"));
    }

    // What eyes see of linear light: all, and without one kind of cones (Machado, Oliveira and Fernandes, 2009).
    readonly property var visions: [
        [1, 0, 0, 0, 1, 0, 0, 0, 1],
        [0.152286, 1.052583, -0.204868, 0.114503, 0.786281, 0.099216, -0.003882, -0.048116, 1.051998],
        [0.367322, 0.860646, -0.227968, 0.280085, 0.672501, 0.047413, -0.011820, 0.042940, 0.968881],
        [1.255528, -0.076749, -0.178779, -0.078411, 0.930809, 0.147602, 0.004733, 0.691367, 0.303900]
    ]

    function transformed(matrix, vector) {
        return [0, 3, 6].map(row => matrix[row] * vector[0] + matrix[row + 1] * vector[1] + matrix[row + 2] * vector[2]);
    }
    function linear(hex) {
        return [0, 2, 4].map(place => Colors.linear(parseInt(hex.slice(place, place + 2), 16) / 255));
    }
    /** The place of a colour in a space where distances are what is seen of a difference (OKLab). */
    function perceived(light) {
        const cones = transformed([0.4122214708, 0.5363325363, 0.0514459929, 0.2119034982, 0.6806995451, 0.1073969566, 0.0883024619, 0.2817188376, 0.6299787005], light.map(part => Math.max(0, Math.min(1, part))));
        return transformed([0.2104542553, 0.7936177850, -0.0040720468, 1.9779984951, -2.4285922050, 0.4505937099, 0.0259040371, 0.7827717662, -0.8086757660], cones.map(Math.cbrt));
    }
    function luminance(hex) {
        const light = linear(hex);
        return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
    }

    function test_palette() {
        const hexes = CategoryPalette.colors.map(color => color.hex);
        compare(hexes.length, 12);
        compare(hexes[0], "21D6D1");
        compare(new Set(CategoryPalette.colors.map(color => color.name)).size, 12);
        for (const hex of hexes) {
            verify(/^[0-9A-F]{6}$/.test(hex));
            for (const ground of [Colors.surface, Colors.raised])
                verify((luminance(hex) + 0.05) / (luminance(ground.toString().slice(1)) + 0.05) >= 3, hex);
            compare(Colors.legible(Qt.color("#" + hex)), Qt.color("#" + hex), "shown as it was chosen");
        }
    }

    function test_palette_stays_apart() {
        for (const vision of visions) {
            const seen = CategoryPalette.colors.map(color => perceived(transformed(vision, linear(color.hex))));
            for (let one = 0; one < seen.length; ++one)
                for (let other = 0; other < one; ++other) {
                    const distance = Math.hypot(...seen[one].map((part, axis) => part - seen[other][axis]));
                    verify(distance > 0.08, CategoryPalette.colors[one].name + " and " + CategoryPalette.colors[other].name);
                }
        }
    }
}
