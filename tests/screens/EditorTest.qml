import QtQuick
import VORNELApp

/** A test of the editor, on a library of two skills of which "audit" is open. */
ScreenTest {
    id: test

    readonly property string file: "workspace/skills/audit/SKILL.md"

    function textArea() {
        return control("Instructions de la compétence");
    }
    function text() {
        return textArea().text;
    }
    /** Writes a file of the skill and of both copies. */
    function writeEverywhere(name, text) {
        for (const folder of ["workspace/skills", "claude", "codex"])
            fixture.write(folder + "/audit/" + name, text);
    }
    function openSkill(text) {
        fixture.fillLibrary(["audit", "notes"]);
        writeEverywhere("SKILL.md", text);
        showSkill();
    }
    function showSkill() {
        open();
        awaitText("Bibliothèque");
        settle();
        fixture.model.selectSkill(fixture.idOf("audit"));
        awaitText("INSTRUCTIONS");
        settle();
        awaitText("Claude, à jour");
    }
    /** The program ends, however it does, and is started again. */
    function reopen() {
        close();
        fixture.restart();
        showSkill();
    }
    function typeAt(position, text) {
        textArea().forceActiveFocus();
        textArea().cursorPosition = position;
        type(text);
    }
    /** Types as soon as the next save has begun. */
    function typeDuringSave(text) {
        function typeOnce() {
            fixture.model.isWorkingChanged.disconnect(typeOnce);
            textArea().insert(0, text);
        }
        fixture.model.isWorkingChanged.connect(typeOnce);
    }
    function undo() {
        textArea().forceActiveFocus();
        keyClick(Qt.Key_Z, Qt.ControlModifier);
    }
    function save() {
        keyClick(Qt.Key_S, Qt.ControlModifier);
        awaitText("ENREGISTRÉ");
        settle();
    }
    /** Saves what can't be saved, and leaves the sheet that says so to the notice below. */
    function saveInVain() {
        keyClick(Qt.Key_S, Qt.ControlModifier);
        tryVerify(() => shows("Le texte n’est pas enregistré") && focusedName() === "Fermer");
        keyClick(Qt.Key_Escape);
        tryVerify(() => !shows("Le texte n’est pas enregistré"));
    }
    function saveElsewhere(text) {
        verify(fixture.saveElsewhere("audit", text));
    }
    function moveToDesign() {
        click("Catégorie, Autre");
        click("Design");
        awaitText("CATÉGORIE MODIFIÉE");
        settle();
    }
    function acceptDifferences() {
        awaitText("Différences avec les copies");
        for (let stop = 0; stop < 6 && focusedName() !== "Enregistrer"; ++stop)
            press(Qt.Key_Tab); // over the lines, if there are any, and what else can be done
        press(Qt.Key_Return);
        awaitText("ENREGISTRÉE");
        awaitText("Claude, à jour");
        tryVerify(() => !shows("Différences avec les copies"));
        settle();
    }
    /** Replaces what is on the disk, and differs from the copies. */
    function keepOwnText() {
        click("Garder mon texte");
        tryVerify(() => focusedName() === "Annuler");
        press(Qt.Key_Tab, Qt.Key_Return);
        acceptDifferences();
    }
    function awaitKept(texts) {
        tryVerify(() => JSON.stringify(fixture.keptTexts()) === JSON.stringify(texts), 2000, "keeps " + texts);
    }
    function verifyOnDisk(text) {
        compare(fixture.bytes(file), fixture.bytesOfText(text));
    }
    function verifyStored(text) {
        verifyOnDisk(text);
        compare(fixture.bytes("claude/audit/SKILL.md"), fixture.bytesOfText(text));
    }
}
