import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The properties of a skill beside its text, and those of a selection. */
EditorTest {
    id: test

    name: "Properties"

    function openPanel() {
        openSkill("texte");
        keyClick(Qt.Key_Return, Qt.AltModifier);
        tryVerify(() => control("Nom").activeFocus);
    }
    function manifest() {
        return model.selectedSkill.manifest;
    }
    function saveProperties() {
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("PROPRIÉTÉS MODIFIÉES");
        settle();
    }
    function skill(slug) {
        return model.overview.skills.find(skill => skill.slug === slug);
    }
    function selectBoth() {
        openShell(["audit"]);
        fixture.create("notes", "Notes", "", "other", ["brouillon", "équipe"]);
        settle();
        wait(0); // until the editor that the creation has opened is gone, with its shortcuts
        keyClick(Qt.Key_A, Qt.ControlModifier);
        awaitText("2 sélectionnées");
        keyClick(Qt.Key_Enter, Qt.AltModifier);
        awaitText("Propriétés de 2 compétences");
        tryVerify(() => control("Catégorie, Inchangée").activeFocus);
    }

    function test_what_the_texts_say() {
        openShell(["audit", "notes"]);
        const head = slug => "---\nname: " + slug + "\ndescription: >-\n  Dit\n  mieux\n---\n";
        for (const slug of ["audit", "notes"])
            verify(fixture.saveElsewhere(slug, head(slug)));
        reload();
        model.selectSkill(fixture.idOf("audit"));
        awaitText("INSTRUCTIONS");
        keyClick(Qt.Key_Return, Qt.AltModifier);
        click("Reprendre du SKILL.md");
        tryVerify(() => control("Description").text === "Dit mieux");
        compare(skill("audit").summary, "", "nothing was saved");
        saveProperties();
        compare(manifest().summary, "Dit mieux");

        click("Bibliothèque");
        awaitText("Compétences");
        clickUntil("Sélectionner", "0 sélectionnées");
        click("Tout sélectionner");
        clickUntil("Propriétés…", "notes\u00a0: description «\u00a0Dit mieux\u00a0»");
        click("Reprendre du SKILL.md", "Modifier 2 compétences");
        awaitText("PROPRIÉTÉS MODIFIÉES");
        settle();
        compare(skill("notes").summary, "Dit mieux");
        compare(skill("audit").revision, 3, "which says so already");
    }

    function test_all_by_keyboard() {
        openPanel();
        retype("Nom", "Audit complet");
        press(Qt.Key_Tab);
        type("Ce que je dis");
        press(Qt.Key_Tab, Qt.Key_Return, "L’en-tête du SKILL.md ne dit rien d’autre.", Qt.Key_Tab);
        type("Web,api");
        press(Qt.Key_Return);
        awaitText("Retirer api", "Retirer web");
        press(Qt.Key_Backspace);
        awaitGone("Retirer web");
        press(Qt.Key_Tab, Qt.Key_Return);
        awaitText("Design");
        tryVerify(() => focusedName() === "Autre", 5000, "the present one");
        type("des");
        press(Qt.Key_Return, "Catégorie, Design", Qt.Key_Tab, Qt.Key_Left, Qt.Key_Tab);
        verify(control("Identifiant").activeFocus);
        press(Qt.Key_Return, "PROPRIÉTÉS MODIFIÉES");
        settle();
        compare(manifest().displayName, "Audit complet");
        compare(manifest().summary, "Ce que je dis");
        compare(manifest().tags, ["api"]);
        compare(manifest().category, "design");
        compare(manifest().maturity, Vornel.Maturity.ready);
        compare(manifest().revision, 2);
        verify(shows("Révision\u00A0: 2") && shows("Taille\u00A0: 5\u00A0octets"));
        verify(!control("Enregistrer les propriétés").enabled);
        press(Qt.Key_Escape);
        awaitGone("Fermer les propriétés");
        verify(textArea().activeFocus);
    }

    function test_tags_are_suggested_and_taken_away() {
        openSkill("texte");
        fixture.create("plan", "Plan", "", "other", ["sécurité", "équipe"]);
        selectSkill("audit", "INSTRUCTIONS");
        settle();
        click("Propriétés");
        control("Mots-clés").forceActiveFocus();
        type("SEC");
        awaitGone("Ajouter équipe");
        awaitText("Ajouter sécurité");
        press(Qt.Key_Tab);
        compare(focusedName(), "Ajouter sécurité");
        press(Qt.Key_Space, "Retirer sécurité");
        compare(focusedName(), "Ajouter équipe");
        compare(control("Mots-clés").text, "");
        click("Ajouter équipe");
        verify(control("Mots-clés").activeFocus);
        keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
        compare(focusedName(), "Retirer équipe");
        press(Qt.Key_Right);
        compare(focusedName(), "Retirer sécurité");
        press(Qt.Key_Space);
        compare(focusedName(), "Retirer équipe", "the keyboard stays among them");
        saveProperties();
        compare(manifest().tags, ["équipe"]);
    }

    function test_another_identifier_renames() {
        openPanel();
        typeAt(0, "x");
        retype("Identifiant", "Notes");
        awaitText("Utilisez uniquement des lettres, chiffres et tirets.");
        retype("Identifiant", "notes");
        awaitText("Une compétence porte déjà cet identifiant.");
        fixture.write("codex/pris/notes.txt", "à un autre");
        retype("Identifiant", "pris");
        awaitText("Codex a déjà un dossier de ce nom.");
        verify(!control("Enregistrer les propriétés").enabled);
        retype("Identifiant", "revue");
        tryVerify(() => control("Enregistrer les propriétés").enabled);
        compare(control("Identifiant").Accessible.description, "Enregistrer renommera le dossier de la compétence et ses deux copies.");
        click("Enregistrer les propriétés");
        awaitText("PROPRIÉTÉS MODIFIÉES");
        settle();
        compare(fixture.bytes("claude/revue/SKILL.md"), fixture.bytesOfText("texte"));
        compare(text(), "xtexte");
        textArea().forceActiveFocus();
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("ENREGISTRÉ");
        settle();
        compare(fixture.bytes("claude/revue/SKILL.md"), fixture.bytesOfText("xtexte"));
    }

    function test_leaving_asks() {
        openPanel();
        retype("Nom", "Autre");
        press(Qt.Key_Escape);
        awaitGone("Fermer les propriétés");
        compare(control("Propriétés").Accessible.description, "modifiées, non enregistrées");
        press(Qt.Key_Escape, "Enregistrer les modifications\u00A0?", Qt.Key_Escape);
        awaitGone("Ne pas enregistrer");
        typeAt(0, "x");
        press(Qt.Key_Escape);
        awaitText(/des modifications du texte et des propriétés/);
        tryVerify(() => focusedName() === "Enregistrer");
        press(Qt.Key_Return, "Compétences");
        settle();
        compare(skill("audit").displayName, "Autre");
        verifyStored("xtexte");

        selectSkill("audit", "INSTRUCTIONS");
        settle();
        click("Propriétés");
        retype("Nom", "Perdu");
        clickUntil("Retour à la bibliothèque", "Ne pas enregistrer");
        click("Ne pas enregistrer");
        awaitText("Compétences");
        compare(skill("audit").displayName, "Autre");
    }

    function test_what_is_refused_stays() {
        openPanel();
        retype("Nom", "");
        press(Qt.Key_Escape);
        awaitGone("Fermer les propriétés");
        press(Qt.Key_Escape, "Enregistrer les modifications\u00A0?", Qt.Key_Return);
        awaitText("Le nom est requis.");
        verify(control("Nom").activeFocus, "the user stays, where the mending is");
        verify(!control("Enregistrer les propriétés").enabled);
        type("Autre");
        saveElsewhere("ailleurs");
        click("Enregistrer les propriétés");
        awaitText(/^Révision obsolète/);
        compare(control("Nom").text, "Autre");
        verify(control("Nom").activeFocus && !shows("Fermer"));
        settle();
        press(Qt.Key_Return, "PROPRIÉTÉS MODIFIÉES");
        compare(skill("audit").displayName, "Autre");
    }

    function test_the_history_takes_its_place() {
        openPanel();
        keyClick(Qt.Key_H, Qt.ControlModifier);
        awaitText("Fermer l’historique");
        verify(!shows("Fermer les propriétés"));
        keyClick(Qt.Key_Return, Qt.AltModifier);
        awaitGone("Fermer l’historique");
        tryVerify(() => control("Nom").activeFocus);
    }

    function test_a_selection_is_changed_at_once_and_taken_back() {
        selectBoth();
        verify(!control("Modifier 2 compétences").enabled);
        press(Qt.Key_Return, "Design");
        type("des");
        press(Qt.Key_Return, "Catégorie, Design", Qt.Key_Tab, Qt.Key_Right, Qt.Key_Tab);
        type("lot");
        press(Qt.Key_Return, "Retirer lot", Qt.Key_Tab, Qt.Key_Tab);
        compare(focusedName(), "brouillon");
        press(Qt.Key_Space);
        verify(!shows("Retirer brouillon"), "it only is to be removed");
        click("Modifier 2 compétences");
        awaitText("PROPRIÉTÉS MODIFIÉES");
        awaitGone("Mots-clés à ajouter");
        settle();
        compare(skill("audit").tags, ["lot"]);
        compare(skill("notes").tags, ["équipe", "lot"]);
        for (const slug of ["audit", "notes"]) {
            compare(skill(slug).category, "design");
            compare(skill(slug).maturity, Vornel.Maturity.draft);
        }
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        awaitText("ANNULÉ\u00A0: PROPRIÉTÉS");
        settle();
        compare(skill("audit").tags, []);
        compare(skill("notes").tags, ["brouillon", "équipe"]);
        compare(skill("notes").category, "other");
    }

    function test_a_selection_is_left_as_it_is() {
        selectBoth();
        press(Qt.Key_Escape);
        awaitGone("Propriétés de 2 compétences");
        compare(focusedName(), "audit");
        press(Qt.Key_Escape);
        awaitGone("2 sélectionnées");
    }
}
