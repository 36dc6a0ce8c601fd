pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** Skills by name. Up and Down move, Enter chooses. Without skills, `emptyTitle` stands in their place. */
FocusScope {
    id: list

    required property string title
    required property var skills
    required property string emptyTitle
    required property string emptySymbol
    property bool isChoosable: true

    signal chosen(id: uuid)

    Label {
        id: heading

        anchors.left: parent.left
        anchors.margins: Metrics.huge
        anchors.top: parent.top
        font: Typography.title
        text: list.title
    }
    Label {
        anchors.baseline: heading.baseline
        anchors.left: heading.right
        anchors.leftMargin: Metrics.medium
        color: Colors.secondary
        font: Typography.lead
        text: view.count
    }
    ListView {
        id: view

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: Metrics.medium
        anchors.right: parent.right
        anchors.top: heading.bottom
        activeFocusOnTab: true
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        focus: true
        model: list.skills
        spacing: Metrics.tiny

        T.ScrollBar.vertical: ScrollRail {}
        Accessible.name: list.title
        Accessible.role: Accessible.List

        delegate: SkillListRow {
            isChoosable: list.isChoosable
            width: view.width - Metrics.medium
            onClicked: list.chosen(record.id)
        }
    }
    StateView {
        anchors.centerIn: parent
        symbol: list.emptySymbol
        title: list.emptyTitle
        visible: view.count === 0
        width: parent.width - 2 * Metrics.huge
    }
}
