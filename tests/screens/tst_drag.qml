import QtQuick
import VORNELApp
import VORNELDesignSystem

/** Cards that are dragged to a category. */
ScreenTest {
    id: test

    name: "Drag"

    /** What a card says to those it is dragged to. The platform of the tests takes no drag any further. */
    function draggedText(slug, distances = [4, 20]) {
        const card = control(slug);
        const drag = findChild(root, "library-drag");
        drag.payload = "";
        findChild(root, "library-page-top").parent.parent.contentY = Math.max(0, card.y - 100);
        mousePress(card, 20, 20);
        for (const distance of distances)
            mouseMove(card, 20 + distance, 20 + distance, -1, Qt.LeftButton);
        tryVerify(() => drag.payload !== "");
        mouseRelease(card, 40, 40);
        compare(drag.Drag.mimeData["text/plain"], drag.payload);
        return drag.payload;
    }
    /** Without a compositor, what is see-through would be black. */
    function verifyLabelHasCorners() {
        const drag = findChild(root, "library-drag");
        tryVerify(() => String(drag.Drag.imageSource) !== "");
        const label = Array.from(drag.children).find(item => item.grabToImage !== undefined && item.text !== undefined);
        let corners;
        label.grabToImage(({ image }) => corners = [fixture.pixel(image, 0, 0), fixture.pixel(image, label.width - 1, label.height - 1)]);
        tryVerify(() => corners !== undefined);
        compare(corners, [Colors.line, Colors.line]);
    }
    function drop(text, entry) {
        fixture.drop(control(entry), text);
        settle();
    }

    function test_drag_and_drop() {
        openLibrary();
        const ids = slugs => "vornel-skills:" + slugs.map(slug => String(fixture.idOf(slug)).replace(/[{}]/g, "").toUpperCase()).sort();
        compare(draggedText("audit"), ids(["audit"]));
        verifyLabelHasCorners();
        drop(draggedText("audit", [60]), "Opérations, 0 compétences"); // at once, faster than the list could follow
        awaitText("CATÉGORIE MODIFIÉE");
        compare(categoryOf("audit"), "operations");
        verify(!shows("Retour à la bibliothèque"), "a drag is no click");

        click("Sélectionner");
        for (const slug of ["audit", "notes", "plan"])
            click(slug);
        compare(draggedText("revue"), ids(["revue"]), "a card that isn't selected goes alone");
        compare(draggedText("notes"), ids(["audit", "notes", "plan"]));
        drop(draggedText("plan"), "Qualité, 1 compétence");
        for (const slug of ["audit", "notes", "plan", "revue"])
            compare(categoryOf(slug), "quality");
        verifyShown("3 sélectionnées");
    }

    function test_foreign_drops_change_nothing() {
        openLibrary();
        const audit = String(fixture.idOf("audit")).replace(/[{}]/g, "");
        drop("autre-skills:" + audit, "Design, 1 compétence");
        drop("vornel-skills:" + audit, "Toutes, 4 compétences");
        verify(!shows("CATÉGORIE MODIFIÉE"));
        compare(categoryOf("audit"), "other");

        const design = control("Design, 1 compétence");
        fixture.dragOver(design, "bonjour");
        verify(!design.isDropTarget);
        fixture.dragOver(design, "vornel-skills:" + audit);
        verify(design.isDropTarget);
        drop("vornel-skills:abc," + audit.toLowerCase(), "Design, 1 compétence");
        compare(categoryOf("audit"), "design", "what another program sends");
        verify(!control("Design, 2 compétences").isDropTarget);
    }
}
