pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The files in which copies differ. Up and Down move, Space chooses what is to be adopted. */
Surface {
    id: list

    required property DifferentFileList model
    property alias currentIndex: view.currentIndex
    readonly property alias count: view.count

    /** What takes the keyboard. */
    readonly property alias list: view

    signal chosen(target: int, path: string)

    function show(): void {
        const item = view.currentItem as DifferentFileRow;
        if (item !== null)
            chosen(item.target, item.path);
    }

    border.color: view.activeFocus ? Colors.accent : Colors.line

    RowList {
        id: view

        anchors.fill: parent
        anchors.margins: Metrics.small
        focus: true
        model: list.model
        name: "Fichiers différents"
        Keys.onSpacePressed: list.model.toggle(currentIndex)
        onCurrentItemChanged: list.show()

        delegate: DifferentFileRow {
            width: view.width
            onClicked: {
                view.currentIndex = index;
                view.forceActiveFocus(Qt.MouseFocusReason);
            }
            onToggled: list.model.toggle(index)
        }
    }
}
