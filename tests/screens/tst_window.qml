import QtQuick
import VORNELApp

/** The window itself: its size, and what closing it waits for. */
ScreenTest {
    name: "Window"

    function test_a_window_that_is_too_small_is_scrolled() {
        const window = openWindow(["audit"]);
        for (let change = 0; change < 2; ++change)
            ignoreWarning("This plugin does not support propagateSizeHints()");
        window.minimumHeight = window.minimumWidth = 0; // as a tiling window manager takes it
        window.width = 500;
        window.height = 400;
        tryVerify(() => window.width === 500);
        const reading = control("Actualiser");
        const right = () => reading.mapToItem(null, reading.width, 0).x;
        verify(right() > 700, "nothing is squeezed");
        mouseDrag(window.contentItem, 480, 300, -400, 0, Qt.LeftButton, Qt.NoModifier, 50);
        mouseDrag(window.contentItem, 480, 300, -400, 0, Qt.LeftButton, Qt.NoModifier, 50);
        tryVerify(() => right() <= 500);
        control("Gérer les catégories").forceActiveFocus(Qt.TabFocusReason);
        const bottom = () => control("Gérer les catégories").mapToItem(null, 0, 36).y;
        verify(bottom() <= 400, "what has the keyboard is in view");
        window.close();
        awaitClosed(window);
    }

    function test_closing_stops_what_is_done_to_several() {
        const window = openWindow(["a", "b", "c"]);
        removeCopies(["a", "b", "c"]);
        model.selectedDestination = AppStates.Destination.needsAttention;
        click("Actualiser");
        tryVerify(() => model.needsAttentionCount === 3 && !model.isBusy);
        click("Tout synchroniser");
        tryVerify(() => window.activeFocusItem.Accessible.name === "Annuler");
        fixture.holdWorkspace();
        press(Qt.Key_Tab, Qt.Key_Return);
        tryVerify(() => model.batch.isRunning);
        window.close();
        verify(window.visible);
        fixture.releaseWorkspace();
        awaitClosed(window);
        compare(model.batch.doneCount, 1);
    }

    function test_closing_asks_about_what_was_typed() {
        const window = openWindow(["audit"]);
        awaitText("audit");
        click("Actualiser");
        keyClick(Qt.Key_N, Qt.ControlModifier);
        awaitText("Le nom est requis.");
        type("Veille");
        for (const answer of ["Continuer la saisie", "Abandonner"]) {
            window.close();
            verify(window.visible);
            awaitText("Abandonner la saisie\u00a0?");
            all(answer)[0].clicked();
            awaitGone("Abandonner la saisie\u00a0?");
        }
        awaitClosed(window);
    }
}
