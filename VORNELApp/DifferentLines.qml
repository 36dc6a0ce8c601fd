pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** The lines in which a file differs, in the order of the file, with some of what lies around them. */
Surface {
    id: pane

    required property CopyComparison comparison

    border.color: view.activeFocus ? Colors.accent : Colors.line

    ListView {
        id: view

        anchors.fill: parent
        anchors.margins: Metrics.small
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        model: pane.comparison

        Accessible.name: "Lignes différentes"
        Accessible.role: Accessible.List
        Keys.onDownPressed: flick(0, -600)
        Keys.onUpPressed: flick(0, 600)
        T.ScrollBar.vertical: ScrollRail {}

        delegate: DifferentLine {
            width: view.width - Metrics.medium
        }
    }
    Label {
        anchors.centerIn: parent
        color: Colors.secondary
        text: pane.comparison.explanation
        visible: view.count === 0
    }
}
