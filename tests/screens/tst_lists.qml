import QtQuick
import VORNELApp
import VORNELDesignSystem

/** A click leaves a list where it is; what the keyboard goes to is brought into view. */
ScreenTest {
    id: test

    name: "Lists"

    /** Thirty of each: skills, categories, files of the skill "audit", and files that a copy has more. */
    function openAll() {
        const numbers = Array.from({ length: 30 }, (_, number) => 100 + number);
        for (const number of numbers)
            fixture.write(`claude/audit/fichier-${number}.md`, "");
        openShell(["audit", ...numbers.map(number => "notes-" + number)]);
        for (const number of numbers) {
            fixture.createCategoryElsewhere("Catégorie " + number);
            fixture.write(`codex/audit/ajout-${number}.md`, "");
        }
        reload();
    }
    function openSkill() {
        selectSkill("audit", "Codex, copie modifiée");
    }
    function openTrash() {
        fixture.trash(model.overview.skills.map(skill => skill.slug));
        settle();
        click("Corbeille");
    }
    /** The list of this name, the one of a sheet if there is one. */
    function list(name) {
        const lists = () => all(name).filter(item => item.contentY !== undefined && item.count >= 30);
        tryVerify(() => lists().length > 0);
        return lists().find(item => item.activeFocus) ?? lists()[0];
    }

    function test_click_data() {
        const isChosen = row => row.isChosen || row.isSelected || row.highlighted || row.activeFocus;
        return [
            { tag: "rail", name: "Catégories", open: () => {}, isClicked: isChosen },
            { tag: "manager", name: "Catégories", open: () => click("Gérer les catégories"), isClicked: () => shows("CATÉGORIE") },
            { tag: "files", name: "Fichiers", open: openSkill, isClicked: isChosen },
            { tag: "differences", name: "Fichiers différents", open: () => { openSkill(); click("Codex, copie modifiée"); }, isClicked: isChosen },
            { tag: "trash", name: "Corbeille", open: openTrash, isClicked: isChosen },
        ];
    }
    function test_click(data) {
        openAll();
        data.open();
        const view = list(data.name);
        wait(Motion.normal); // in which its sheet is laid out
        view.positionViewAtIndex(25, ListView.End);
        const row = view.itemAtIndex(25);
        view.contentY = row.y + 10 - view.height; // which shows ten pixels of it
        const place = view.contentY;
        mouseClick(view, 40, view.height - 5);
        tryVerify(() => data.isClicked(row));
        wait(Motion.normal); // in which a list that moves would be on its way
        compare(view.contentY, place);
        if (data.tag === "manager")
            click("Annuler");

        view.forceActiveFocus(Qt.TabFocusReason);
        for (const [key, index] of [[Qt.Key_End, view.count - 1], [Qt.Key_Home, 0]]) {
            keyClick(key);
            compare(view.currentIndex, index);
            const { y, height } = view.currentItem;
            verify(y >= view.contentY && y + height <= view.contentY + view.height, "the row with the keyboard is in view");
        }
    }
}
