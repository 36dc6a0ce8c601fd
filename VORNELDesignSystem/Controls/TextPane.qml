import QtQuick
import QtQuick.Templates as T

/** A text of many lines in the fixed-width font, which wraps and scrolls. Its `area` is the text itself. */
FocusScope {
    id: pane

    property alias area: area
    readonly property alias contentY: flickable.contentY

    Flickable {
        id: flickable

        anchors.fill: parent
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        onHeightChanged: {
            const caretEnd = area.cursorRectangle.y + area.cursorRectangle.height + area.bottomPadding;
            if (area.activeFocus)
                contentY = Math.max(contentY, caretEnd - height);
        }

        T.ScrollBar.vertical: ScrollRail {}
        T.TextArea.flickable: T.TextArea {
            id: area

            implicitHeight: contentHeight + topPadding + bottomPadding
            color: Colors.text
            focus: true
            font: Typography.code
            padding: Metrics.large
            renderType: Text.NativeRendering
            selectByMouse: true
            selectedTextColor: Colors.inkOnAccent
            selectionColor: Colors.accent
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
        }
    }
}
