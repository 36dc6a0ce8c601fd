import QtQuick
import QtTest
import VORNELApp
import VORNELTests

/** A test that sees the window as assistive tools do: by the names of what is visible. */
TestCase {
    id: test

    readonly property Fixture fixture: currentFixture
    readonly property AppModel model: fixture?.model ?? null
    property Fixture currentFixture
    property Item root

    readonly property Component fixtures: Component {
        Fixture {}
    }
    readonly property Component windows: Component {
        Main {
            model: test.model
            visible: true
        }
    }
    readonly property Component roots: Component {
        RootView {
            focus: true
            height: 800
            model: test.model
            width: 1240
        }
    }

    /** Every visible item of this accessible name, or of one that matches an expression. */
    function all(name) {
        const found = [];
        function walk(item) {
            if (!item.visible)
                return;
            const isFound = name instanceof RegExp ? name.test(item.Accessible.name) : item.Accessible.name === name;
            if (isFound && !item.Accessible.ignored)
                found.push(item);
            for (let index = 0; index < item.children.length; ++index)
                walk(item.children[index]);
        }
        walk(root.Window.contentItem); // sheets lie beside the root
        return found;
    }
    function shows(name) {
        return all(name).length > 0;
    }
    function awaitText(...names) {
        for (const name of names)
            tryVerify(() => shows(name), 5000, "shows " + name);
    }
    function awaitGone(...names) {
        for (const name of names)
            tryVerify(() => !shows(name), 5000, "still shows " + name);
    }
    function verifyShown(...names) {
        for (const name of names)
            verify(shows(name), name);
    }
    /** The only visible control of this name. */
    function control(name) {
        awaitText(name);
        const found = all(name).filter(item => item.clicked !== undefined || item.placeholderText !== undefined);
        compare(found.length, 1, name);
        return found[0];
    }
    /** Clicks one control after another. */
    function click(...names) {
        for (const name of names) {
            const item = control(name);
            tryVerify(() => item.enabled, 5000, name);
            waitForItemPolished(item.parent);
            mouseClick(item);
        }
    }
    /** Clicks a control, and awaits these texts. */
    function clickUntil(name, ...texts) {
        click(name);
        awaitText(...texts);
    }
    /** Types over what stands in a field. */
    function retype(name, text) {
        control(name).forceActiveFocus();
        keyClick(Qt.Key_A, Qt.ControlModifier);
        press(Qt.Key_Delete);
        type(text);
    }
    /** Agrees to the question that is open, whose way back has the keyboard, and awaits these texts. */
    function accept(...texts) {
        tryVerify(() => focusedName() === "Annuler");
        press(Qt.Key_Tab, Qt.Key_Return);
        awaitGone("Annuler");
        awaitText(...texts);
    }
    function cancel() {
        click("Annuler");
        awaitGone("Annuler");
    }
    /** The list of this name. */
    function list(name) {
        return all(name).find(item => item.contentY !== undefined);
    }
    /** Presses one key after another, and awaits each text among them. */
    function press(...keys) {
        for (const key of keys)
            typeof key === "number" ? keyClick(key) : awaitText(key);
    }
    function type(text) {
        for (const letter of text)
            keyClick(letter);
    }
    function focusedName() {
        return root.Window.activeFocusItem.Accessible.name;
    }
    function settle() {
        tryVerify(() => !model.isBusy);
    }
    function reload() {
        model.reload();
        settle();
    }
    /** Throws skills of the library away. */
    function trash(...slugs) {
        fixture.trash(slugs);
        settle();
    }
    function selectSkill(slug, ...texts) {
        model.selectSkill(fixture.idOf(slug));
        awaitText(...texts);
    }
    function removeCopies(slugs) {
        for (const slug of slugs)
            fixture.remove("codex/" + slug);
    }
    function categoryOf(slug) {
        return model.overview.skills.find(skill => skill.slug === slug)?.category;
    }
    /** So many slugs: "s01", "s02"… */
    function numbered(count) {
        return Array.from({ length: count }, (_, number) => "s" + String(number + 1).padStart(2, "0"));
    }
    /** The window goes before what it shows. */
    function close() {
        root?.destroy();
        wait(0);
    }
    function open() {
        close();
        root = createTemporaryObject(roots, test.parent); // a test itself is invisible
        root.Window.window.requestActivate();
        tryVerify(() => root.Window.active);
        root.forceActiveFocus();
    }
    /** A whole window, on a library of these skills. */
    function openWindow(slugs) {
        fixture.fillLibrary(slugs);
        const window = windows.createObject(null);
        tryVerify(() => window.active && model.phase.name === AppStates.PhaseName.ready && !model.isBusy);
        root = window.contentItem;
        return window;
    }
    /** Awaits that it closes. */
    function awaitClosed(window) {
        tryVerify(() => !window.visible);
        window.destroy();
        root = null;
        wait(0);
    }
    function openShell(slugs) {
        fixture.fillLibrary(slugs);
        open();
        awaitText("Compétences"); // the library is made after the first frame
        settle();
    }

    /** A library with a skill in "quality", one in "design", and two in the default category. */
    function openLibrary() {
        openShell(["audit", "notes"]);
        fixture.create("revue", "quality", Vornel.Maturity.ready);
        fixture.create("plan", "design", Vornel.Maturity.draft);
        settle();
        awaitText("2 compétences");
    }

    height: 800
    when: windowShown
    width: 1240

    function init() {
        failOnWarning(/.*/);
        currentFixture = createTemporaryObject(fixtures, test);
    }
    function cleanup() {
        close();
    }
}
