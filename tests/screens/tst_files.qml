import QtQuick
import VORNELApp
import VORNELDesignSystem
import VORNELTests

/** The files of a skill beside its text. */
EditorTest {
    id: test

    readonly property string guide: "workspace/skills/audit/docs/guide.txt"

    name: "Files"

    /** The skill with two files, of which the first is shown. */
    function openFile() {
        fixture.fillLibrary(["audit", "notes"]);
        writeEverywhere("docs/guide.txt", "un\r\ndeux\r\n");
        writeEverywhere("LICENCE", "libre\n");
        showSkill();
        click("Prendre en compte");
        awaitGone("Prendre en compte");
        settle();
        showFile("guide.txt");
    }
    function showFile(name) {
        clickUntil(name, new RegExp("^Contenu de .*" + name));
        area(name).forceActiveFocus();
    }
    function area(name) {
        return all(new RegExp("^Contenu de .*" + name))[0];
    }
    function row(name) {
        return all(name).find(item => item.depth !== undefined);
    }
    function revision() {
        return model.selectedSkill.manifest.revision;
    }
    function verifyFile(name, text) {
        for (const folder of ["workspace/skills", "claude", "codex"])
            compare(fixture.bytes(folder + "/audit/" + name), fixture.bytesOfText(text), folder + name);
    }
    function saveAll() {
        settle();
        keyClick(Qt.Key_S, Qt.ControlModifier);
        tryCompare(model.openSkill, "state", OpenSkill.Clean);
        settle();
    }

    /** The copies differ from what others have written. */
    function saveOverCopies() {
        settle();
        keyClick(Qt.Key_S, Qt.ControlModifier);
        tryCompare(model.openSkill, "state", OpenSkill.AskingToReplace);
        model.openSkill.replacement.agree();
        tryCompare(model.openSkill, "state", OpenSkill.Clean);
        settle();
        tryVerify(() => area("guide.txt").activeFocus);
    }

    function test_one_save_for_all_texts() {
        openFile();
        type("zero ");
        awaitText("MODIFIÉ");
        showFile("LICENCE");
        verify(shows("ENREGISTRÉ"));
        type("tres ");
        click("SKILL.md");
        typeAt(0, "-");
        compare(row("guide.txt").Accessible.description, "modifié, non enregistré");
        const before = revision();
        saveAll();
        compare(revision(), before + 1);
        verifyFile("docs/guide.txt", "zero un\r\ndeux\r\n");
        verifyFile("LICENCE", "tres libre\n");
        compare(row("guide.txt").Accessible.description, "");
    }

    function test_unsaved_texts_outlive_the_program() {
        openFile();
        type("a");
        tryVerify(() => fixture.keptTexts().length === 1);
        reopen();
        awaitText(/^Texte non enregistré du .* retrouvé\u00a0: docs\/guide\.txt\.$/);
        showFile("guide.txt");
        compare(area("guide.txt").text, "aun\ndeux\n");
        saveAll();
        verifyFile("docs/guide.txt", "aun\r\ndeux\r\n");
        tryCompare(fixture.keptTexts(), "length", 0);
    }

    function test_what_is_given_up_comes_back_by_undoing() {
        openFile();
        type("a");
        tryVerify(() => fixture.keptTexts().length === 1);
        reopen();
        clickUntil("Abandonner", "ENREGISTRÉ");
        showFile("guide.txt");
        compare(area("guide.txt").text, "un\ndeux\n");
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        compare(area("guide.txt").text, "aun\ndeux\n");
        awaitText("MODIFIÉ");
    }

    function test_leaving_asks() {
        openFile();
        type("a");
        click("Retour à la bibliothèque");
        clickUntil("Ne pas enregistrer", "Compétences");
        fixture.model.selectSkill(fixture.idOf("audit"));
        awaitText("INSTRUCTIONS");
        showFile("guide.txt");
        compare(area("guide.txt").text, "un\ndeux\n");
    }

    function test_file_that_others_have_changed() {
        openFile();
        type("a");
        fixture.write(guide, "autre");
        click("SKILL.md");
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("Ce fichier a changé sur le disque depuis que vous le modifiez.");
        compare(fixture.bytes(guide), fixture.bytesOfText("autre"), "nothing is written unasked");
        click("Prendre celui du disque");
        compare(area("guide.txt").text, "autre");
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        awaitText("MODIFIÉ");
        saveOverCopies();
        verifyFile("docs/guide.txt", "aun\r\ndeux\r\n");

        area("guide.txt").cursorPosition = 0;
        type("b");
        fixture.remove(guide);
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("Ce fichier a changé sur le disque depuis que vous le modifiez.");
        click("Garder le mien");
        saveOverCopies();
        verifyFile("docs/guide.txt", "baun\r\ndeux\r\n");
    }

    function test_changes_by_keyboard() {
        openFile();
        type("a");
        row("guide.txt").forceActiveFocus(Qt.TabFocusReason);
        press(Qt.Key_F2);
        retype("Chemin dans la compétence", "LICENCE");
        awaitText("Ce nom est déjà pris.");
        retype("Chemin dans la compétence", "docs/vornel.json");
        awaitText("«\u00a0docs/vornel.json\u00a0» porte le nom d’un fichier réservé à VORNEL.");
        retype("Chemin dans la compétence", "LICENCE/a");
        awaitText("Un fichier est sur le chemin de «\u00a0LICENCE/a\u00a0».");
        verify(!control("Renommer").enabled);
        retype("Chemin dans la compétence", "manuel.txt");
        press(Qt.Key_Return);
        awaitText("Contenu de manuel.txt");
        awaitGone("Renommer ou déplacer");
        tryVerify(() => focusedName() === "manuel.txt");
        compare(area("manuel.txt").text, "aun\ndeux\n", "what isn't saved goes along");
        verifyFile("manuel.txt", "un\r\ndeux\r\n");
        awaitGone("guide.txt");
        awaitText("docs", "Codex, à jour");
        saveAll();

        row("LICENCE").forceActiveFocus(Qt.TabFocusReason);
        press(Qt.Key_Delete);
        accept("SKILL.md");
        awaitGone("LICENCE");
        settle();
        tryVerify(() => focusedName() === "SKILL.md");
        model.undo();
        awaitText("LICENCE");
        verifyFile("LICENCE", "libre\n");

        row("docs").forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_F10, Qt.ShiftModifier);
        clickUntil("Nouveau fichier…", "Nouveau fichier");
        type("neuf.md");
        press(Qt.Key_Return);
        awaitText("Contenu de docs/neuf.md");
        tryVerify(() => focusedName() === "Contenu de docs/neuf.md");
        type("x");
        saveAll();
        verifyFile("docs/neuf.md", "x");
    }

    function test_other_programs() {
        openFile();
        row("guide.txt").forceActiveFocus(Qt.TabFocusReason);
        press(Qt.Key_Menu);
        clickUntil("Ouvrir avec…", "ENREGISTRÉ");
        tryCompare(fixture, "openedFolder", fixture.path(guide), 5000, "no desktop asks which");
    }

    function test_duplicate() {
        openFile();
        type("a");
        click("Plus d’actions");
        clickUntil("Dupliquer…", "Dupliquer «\u00a0audit\u00a0»");
        compare(control("Identifiant").text, "audit-copie");
        retype("Identifiant", "notes");
        awaitText("Une compétence de la bibliothèque porte cet identifiant.");
        retype("Identifiant", "revue");
        press(Qt.Key_Return);
        awaitText("DUPLIQUÉE");
        compare(fixture.bytes("codex/revue/docs/guide.txt"), fixture.bytesOfText("un\r\ndeux\r\n"), "as it is saved");
        verify(shows("MODIFIÉ"), "what is typed stays");
    }

    function test_files_from_elsewhere() {
        openFile();
        fixture.write("dehors/lot/a.txt", "a");
        fixture.write("dehors/lot/vide/.cache", "");
        fixture.write("dehors/LICENCE", "autre");
        const urls = ["lot", "LICENCE"].map(name => "file://" + fixture.path("dehors/" + name));
        model.openSkill.files.bring(urls, "");
        awaitText("Remplacer ce fichier\u00a0?");
        accept("lot");
        settle();
        verifyFile("lot/a.txt", "a");
        awaitText("vide");
        verifyFile("LICENCE", "autre");

        awaitGone("Remplacer ce fichier\u00a0?");
        awaitText("Contenu de lot/a.txt");
        showFile("LICENCE");
        type("vieux ");
        model.openSkill.files.bring([urls[1]], "");
        awaitText("Remplacer ce fichier\u00a0?");
        accept("ENREGISTRÉ");
        tryVerify(() => area("LICENCE").text === "autre", 5000, "what was typed isn't shown as saved");
        settle();
        awaitGone("Remplacer ce fichier\u00a0?");
        area("LICENCE").forceActiveFocus();
        keyClick(Qt.Key_Z, Qt.ControlModifier);
        tryVerify(() => area("LICENCE").text === "vieux autre", 5000, "it can be brought back");
        saveAll();
        verifyFile("LICENCE", "vieux autre");

        model.openSkill.files.bring(["file://" + fixture.path("dehors/absent")], "");
        awaitText(/absent.* n’est ni un fichier ni un dossier/);
    }
}
