import QtQuick
import VORNELApp

/** The menus of cards and rows, by the right button and by the keyboard. */
ScreenTest {
    id: test

    name: "Menus"

    /** Opens the menu of a card or row, and takes a command of it. */
    function command(name, text) {
        mouseClick(control(name), 30, 30, Qt.RightButton);
        take(text);
    }
    function entry(text) {
        return all(text).find(item => item.triggered !== undefined);
    }
    function take(text) {
        tryVerify(() => entry(text)?.enabled);
        mouseClick(entry(text));
        tryVerify(() => !entry(text) || text.startsWith("Déplacer"));
    }
    function slugs(skills) {
        settle();
        return skills().map(skill => skill.slug).join();
    }
    function active() {
        return slugs(() => model.overview.skills);
    }
    function test_a_card() {
        openShell(["audit", "notes", "plan", "revue"]);
        command("notes", "Copier le chemin");
        compare(fixture.clipboard(), fixture.path("workspace/skills/notes"));
        command("notes", "Ouvrir le dossier");
        compare(fixture.openedFolder, fixture.path("workspace/skills/notes"));
        command("notes", "Déplacer…");
        tryVerify(() => entry("Autre")?.checked);
        take("Qualité");
        settle();
        compare(categoryOf("notes") + categoryOf("audit"), "qualityother");

        fixture.write("codex/notes/SKILL.md", "retouché");
        reload();
        command("notes", "Synchroniser");
        awaitText("Différences avec les copies");
        all("Synchroniser").pop().clicked(); // the one of the sheet
        awaitGone("Différences avec les copies");
        settle();
        compare(fixture.bytes("codex/notes/SKILL.md"), fixture.bytes("workspace/skills/notes/SKILL.md"));

        command("plan", "Placer dans la corbeille");
        awaitText("Placer cette compétence dans la corbeille ?");
        accept();
        compare(active(), "audit,notes,revue");
        command("audit", "Ouvrir");
        awaitText("Retour à la bibliothèque");
        compare(model.selectedSkill.manifest.slug, "audit");
    }

    function test_a_selection() {
        openShell(["audit", "notes", "plan", "revue"]);
        command("audit", "Sélectionner");
        awaitText("1 sélectionnée");
        command("audit", "Désélectionner");
        awaitText("0 sélectionnées");
        for (const slug of ["audit", "notes", "plan"])
            click(slug);
        mouseClick(control("notes"), 30, 30, Qt.RightButton);
        tryVerify(() => entry("Ouvrir") && !entry("Ouvrir").enabled);
        take("Copier les 3 chemins");
        compare(fixture.clipboard(), ["audit", "notes", "plan"].map(slug => fixture.path("workspace/skills/" + slug)).join("\n"));
        command("revue", "Déplacer…");
        take("Design");
        settle();
        compare(categoryOf("revue") + categoryOf("notes"), "designother", "a card that isn't selected is meant alone");
        command("plan", "Déplacer les 3…");
        take("Qualité");
        settle();
        compare(["audit", "notes", "plan", "revue"].map(categoryOf).join(), "quality,quality,quality,design");

        removeCopies(["audit", "notes"]);
        fixture.write("claude/notes/SKILL.md", "retouché");
        reload();
        command("plan", "Synchroniser les 3");
        awaitText("Synchroniser 3 compétences\u00A0?", /^1 copie modifiée par un assistant sera remplacée/);
        accept();
        settle();
        compare(model.needsAttentionCount, 0);

        model.searchText = "notes";
        awaitText("1 sélectionnée · 2 masquées");
        command("notes", "Placer dans la corbeille");
        awaitText("Placer cette compétence dans la corbeille ?");
        accept();
        compare(active(), "audit,plan,revue", "what is hidden stays");
        model.searchText = "";
        command("plan", "Désélectionner les 2");
        awaitText("0 sélectionnées");
    }

    function test_keyboard() {
        openShell(["audit", "notes", "plan", "revue"]);
        control("notes").forceActiveFocus();
        press(Qt.Key_Menu, "Copier le chemin", Qt.Key_Escape);
        awaitGone("Copier le chemin");
        compare(focusedName(), "notes");
        press(Qt.Key_Right, Qt.Key_Left);
        keyClick(Qt.Key_F10, Qt.ShiftModifier);
        tryVerify(() => focusedName() === "Ouvrir", 5000, "the first command");
        for (const [letters, name] of [["du", "Dupliquer…"], ["de", "Déplacer…"], ["o", "Ouvrir le dossier"], ["o", "Ouvrir"]]) {
            type(letters);
            compare(focusedName(), name);
        }
        press(Qt.Key_Down, Qt.Key_Return, "1 sélectionnée");
        compare(focusedName(), "notes");
        press(Qt.Key_Menu, ...Array(11).fill(Qt.Key_Down), Qt.Key_Return);
        tryVerify(() => focusedName() === "Annuler", 5000, "the question has the keyboard");
        press(Qt.Key_Escape);
        tryVerify(() => focusedName() === "notes");
    }

    function test_rows() {
        openShell(["audit", "notes", "plan", "revue"]);
        removeCopies(["audit", "notes"]);
        reload();
        click("À réparer");
        command("notes", "Déplacer…");
        take("Qualité");
        settle();
        compare(categoryOf("notes"), "quality");
        command("notes", "Placer dans la corbeille");
        accept();
        compare(active(), "audit,plan,revue");
        list("À réparer").forceActiveFocus();
        press(Qt.Key_Menu);
        take("Synchroniser");
        settle();
        awaitText("Tout est synchronisé");

        trash("audit", "plan");
        clickUntil("Corbeille", "notes");
        command("notes", "Sélectionner");
        click("audit");
        command("plan", "Restaurer");
        awaitText("Restaurer « plan » ?");
        accept();
        compare(active(), "plan,revue");
        press(Qt.Key_Menu, Qt.Key_Escape);
        command("audit", "Supprimer les 2 définitivement");
        awaitText("Supprimer définitivement 2 compétences\u00A0?");
        accept();
        compare(slugs(() => model.overview.trashedSkills), "");
    }
}
