import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What a card shows. Screen readers read the card's own name and description instead of these lines. */
Item {
    id: content

    required property libraryCard record
    required property color hue
    required property bool isSelecting
    required property int mostTags

    readonly property skillSummary skill: record.skill

    component Line: Text {
        color: Colors.secondary
        elide: Text.ElideRight
        font: Typography.small
        maximumLineCount: 1
        renderType: Text.NativeRendering
        textFormat: Text.PlainText
    }

    CategoryTile {
        id: tile

        categoryID: content.record.category.id
        hue: content.hue
        isSelected: content.record.isSelected
        isSelecting: content.isSelecting
    }
    Line {
        id: name

        anchors.left: tile.right
        anchors.leftMargin: Metrics.medium
        anchors.right: mark.visible ? mark.left : parent.right
        anchors.rightMargin: mark.visible ? Metrics.small : 0
        anchors.top: tile.top
        color: Colors.text
        font: Typography.section
        horizontalAlignment: Text.AlignLeft
        text: content.skill.displayName
    }
    Line {
        anchors.bottom: tile.bottom
        anchors.left: name.left
        anchors.right: parent.right
        color: content.hue
        horizontalAlignment: Text.AlignLeft
        text: content.record.category.name
    }
    Line {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: tile.bottom
        anchors.topMargin: Metrics.medium
        color: content.record.problem === "" ? Colors.secondary : Colors.danger
        lineHeight: 1.3
        maximumLineCount: content.record.problem === "" ? 2 : 3
        text: content.record.problem === "" ? content.skill.summary : content.record.problem
        wrapMode: Text.Wrap
    }
    Symbol {
        id: mark

        anchors.right: parent.right
        anchors.verticalCenter: name.verticalCenter
        color: Colors.danger
        height: Metrics.symbol
        name: "triangle-alert"
        visible: content.record.errorText !== ""
        width: Metrics.symbol
    }
    TagRow {
        anchors.bottom: state.top
        anchors.bottomMargin: Metrics.small + 2
        most: content.mostTags
        tags: content.skill.tags
        visible: content.record.problem === ""
        width: parent.width
    }
    Rectangle {
        anchors.left: parent.left
        anchors.verticalCenter: state.verticalCenter
        color: SyncVisuals.hue(content.record.syncStateNumber)
        height: 8
        radius: 4
        width: 8
    }
    Line {
        id: state

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        text: content.record.stateText
    }
    Line {
        anchors.baseline: state.baseline
        anchors.left: state.right
        anchors.leftMargin: Metrics.medium
        anchors.right: parent.right
        horizontalAlignment: Text.AlignRight
        text: `${content.skill.maturityText} · ${content.record.age}`
    }
}
