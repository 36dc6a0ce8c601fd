import QtQuick
import QtQuick.Layouts
import VORNELApp
import VORNELDesignSystem

/** What a row says of its skill, and what stands at its end. */
RowLayout {
    id: content

    required property skillEntry record
    property bool isSelecting: false

    /** How many lines there are at most below the name. */
    property int mostLines: 1

    default property alias end: end.data

    spacing: Metrics.medium

    CategoryTile {
        Layout.alignment: Qt.AlignTop
        categoryID: content.record.category.id
        hue: CategoryVisuals.hue(content.record.category.colorHex)
        isSelected: content.record.isSelected
        isSelecting: content.isSelecting
    }
    Column {
        Layout.alignment: Qt.AlignVCenter
        Layout.fillWidth: true
        spacing: Metrics.tiny + 2

        Label {
            font: Typography.section
            text: content.record.skill.displayName
            width: parent.width

            Accessible.ignored: true
        }
        Label {
            color: Colors.secondary
            font: Typography.small
            lineHeight: 1.2
            maximumLineCount: content.mostLines
            text: content.record.line
            width: parent.width
            wrapMode: content.mostLines > 1 ? Text.Wrap : Text.NoWrap

            Accessible.ignored: true
        }
        Label {
            color: Colors.danger
            font: Typography.small
            lineHeight: 1.2
            maximumLineCount: 3
            text: content.record.failure
            visible: text !== ""
            width: parent.width
            wrapMode: Text.Wrap

            Accessible.ignored: true
        }
    }
    Row {
        id: end

        Layout.alignment: Qt.AlignVCenter
        Layout.minimumHeight: 40
        spacing: Metrics.small
    }
}
