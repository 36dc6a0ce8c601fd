import QtQuick
import VORNELApp

/** What no demonstration holds, but a user's library may. */
ScreenTest {
    id: test

    readonly property string longName: "Vérification systématique de la cohérence " + "interministérielle".repeat(4) + " des textes publiés, de leurs annexes et de leurs traductions dans toutes les langues de travail"
    readonly property string longSlug: "verification-".repeat(6) + "ab"
    readonly property string wideCategory: "W".repeat(40)
    readonly property string rightToLeft: "مراجعة الشيفرة البرمجية قبل كل نشر على الخوادم العامة"
    readonly property string lines: "Une ligne\net une autre"
    readonly property string emoji: "👩‍💻🇫🇷🧪 ".repeat(20)

    name: "Content"

    Component {
        id: panels

        ErrorPanel {
            text: "Une raison parmi d’autres\n".repeat(40) + "et 2 autres"
            width: 400
        }
    }

    function keywords() {
        return Array.from({ length: 60 }, (_, number) => number % 2 ? "mot" + number : "très-long-mot-clé-sans-aucune-espace-" + number);
    }
    /** The identifier of a new category of this name. */
    function createCategory(name) {
        fixture.createCategoryElsewhere(name);
        reload();
        return model.overview.categories.find(category => category.name === name).id;
    }
    function openLibrary() {
        openShell(["audit"]);
        const category = createCategory(wideCategory);
        fixture.create(longSlug, longName, "", category, keywords());
        fixture.create("rtl", rightToLeft, rightToLeft.repeat(4), category, [rightToLeft, "deux"]);
        fixture.create("emoji", emoji, "x".repeat(600), category, [emoji]);
        fixture.create("lines", lines, lines, category, []);
        awaitText(longName);
        settle();
    }
    function resize(width, height) {
        root.width = width;
        root.height = height;
        waitForItemPolished(root);
    }
    /** The texts below an item that are painted beyond it, or over their neighbours. */
    function overflowing(item) {
        const found = [];
        function walk(part) {
            if (!part.visible)
                return;
            if (part.truncated !== undefined) {
                const left = part.effectiveHorizontalAlignment === Text.AlignRight ? part.width - part.contentWidth : 0;
                const painted = part.mapToItem(item, left, 0, part.contentWidth, part.contentHeight);
                const isBroken = part.wrapMode === Text.NoWrap && part.lineCount > 1;
                if (isBroken || painted.left < -1 || painted.right > item.width + 1 || painted.top < -1 || painted.bottom > item.height + 1)
                    found.push(part.text);
            }
            for (let index = 0; index < part.children.length; ++index)
                walk(part.children[index]);
        }
        walk(item);
        return found;
    }
    /** The rows, cards or entries of a list that are made. */
    function entries(list) {
        return Array.from(list.contentItem.children).filter(child => child.visible && child.index !== undefined);
    }
    /** The lines that read this. */
    function texts(name) {
        return all(name).filter(item => item.truncated !== undefined);
    }
    function verifyFits(items) {
        verify(items.length > 0);
        for (const item of items)
            compare(overflowing(item), [], item.text);
    }
    function cards() {
        return [longName, rightToLeft, lines, emoji.trim()].map(name => control(name));
    }

    function test_library_data() {
        return [{ tag: "large", width: 1240, height: 800 }, { tag: "small", width: 960, height: 620 }];
    }
    function test_library(size) {
        openLibrary();
        resize(size.width, size.height);
        verifyFits(cards());
        verifyFits(entries(list("Catégories")));
        click(wideCategory + ", 4 compétences");
        verifyFits(cards());
        awaitText("Effacer les filtres");
        verifyFits(texts(wideCategory));
    }

    function test_manager() {
        openLibrary();
        clickUntil("Gérer les catégories", "Fermer");
        const rows = () => all(wideCategory + ", 4 compétences").filter(item => item.deletionAsked !== undefined);
        tryVerify(() => rows().length === 1);
        const row = rows()[0];
        verifyFits(entries(row.ListView.view));
        row.clicked();
        awaitText("CATÉGORIE");
        verifyFits(texts(wideCategory));
    }

    function test_long_menu() {
        openLibrary();
        for (let number = 1; number <= 30; ++number)
            fixture.createCategoryElsewhere("Catégorie " + number);
        reload();
        click("Sélectionner", "audit", "Déplacer");
        awaitText("Catégorie 1");
        const view = control("Catégorie 1").ListView.view;
        const place = view.mapToItem(null, 0, 0);
        verify(place.y >= 0 && place.y + view.height <= root.Window.height, "within the window");
        verifyFits([control(wideCategory)]);
        press(...Array(view.count).fill(Qt.Key_Down));
        tryVerify(() => view.contentY + view.height >= view.contentHeight - 1);
        press(Qt.Key_Return);
        settle();
        compare(categoryOf("audit"), "categorie-30");
    }

    function test_editor() {
        openLibrary();
        resize(960, 620);
        selectSkill(longSlug, "Codex, à jour");
        const category = control("Catégorie, " + wideCategory);
        waitForItemPolished(category.parent.parent);
        verify(category.mapToItem(root, category.width, 0).x <= control("Claude, à jour").mapToItem(root, 0, 0).x);
        verifyFits([category].concat(texts(longName)));
        clickUntil("Catégorie, " + wideCategory, wideCategory);
        verifyFits([control(wideCategory)]);
    }

    function test_a_thousand_files() {
        for (let number = 0; number < 1000; ++number)
            fixture.write("claude/audit/fichier-" + number + ".md", "");
        openShell(["audit"]);
        selectSkill("audit", "Fichiers");
        const files = list("Fichiers");
        tryCompare(files, "count", 1002);
        verify(entries(files).length < 60, "only the rows that are seen are made");
        verifyFits(entries(files));
    }

    function test_long_failure() {
        openShell(["audit"]);
        const panel = createTemporaryObject(panels, root);
        verify(panel.height < root.height / 2);
        const message = texts(panel.text)[0];
        const end = () => message.mapToItem(panel, 0, message.height).y;
        verify(end() > panel.height);
        all("Fermer")[0].forceActiveFocus();
        tryVerify(() => {
            press(Qt.Key_Down);
            return end() <= panel.height;
        }, 5000, "its last line can be reached");
    }

    function test_attention_and_trash() {
        openLibrary();
        removeCopies([longSlug, "rtl", "lines", "emoji"]);
        reload();
        resize(960, 620);
        model.selectedDestination = AppStates.Destination.needsAttention;
        awaitText(longName);
        verifyFits(entries(list("À réparer")));
        trash(longSlug, "rtl", "lines", "emoji");
        model.selectedDestination = AppStates.Destination.trash;
        awaitText(longName);
        verifyFits(entries(list("Corbeille")));
        all("Restaurer").find(item => item.Accessible.description === longName).clicked();
        awaitText("Restaurer « " + longName + " » ?");
        verifyFits(texts("Restaurer « " + longName + " » ?"));
    }
}
