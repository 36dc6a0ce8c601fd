import QtQuick
import QtTest
import VORNELDesignSystem

TestCase {
    id: test

    height: 2000
    name: "Gallery"
    when: windowShown
    width: 1240

    Component {
        id: galleries

        Gallery {
            height: test.height
            width: test.width
        }
    }

    /** Opens whatever the button opens, and closes it again. */
    function tryOut(button) {
        mouseClick(button);
        keyClick(Qt.Key_Escape);
    }

    function buttons(item) {
        let found = item instanceof ActionButton && item.enabled ? [item] : [];
        for (let index = 0; index < item.children.length; ++index)
            found = found.concat(buttons(item.children[index]));
        return found;
    }

    function test_every_component_renders() {
        failOnWarning(/.*/);
        const gallery = createTemporaryObject(galleries, test.parent);
        verify(waitForRendering(gallery));
        const picture = grabImage(gallery);
        compare(picture.pixel(1, 1), Colors.canvas);
        const all = buttons(gallery);
        verify(all.length > 5);
        for (const button of all)
            tryOut(button);
    }
}
