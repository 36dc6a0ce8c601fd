import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** A conflict of a merge, and how it is settled. */
T.ItemDelegate {
    id: row

    required property int index
    required property string path
    required property int choice
    required property bool hasText
    required property bool isSettled
    required property string stateText

    implicitHeight: 48
    focusPolicy: Qt.NoFocus
    highlighted: ListView.isCurrentItem
    horizontalPadding: Metrics.small
    hoverEnabled: true
    text: path

    Accessible.name: path + ", " + stateText
    Accessible.onPressAction: if (enabled) clicked()

    background: Rectangle {
        color: row.highlighted ? Colors.tint(Colors.accent) : row.hovered ? Colors.hover : "transparent"
        radius: Metrics.controlRadius
    }
    contentItem: RowLayout {
        spacing: Metrics.small

        Symbol {
            Layout.preferredHeight: Metrics.symbol
            Layout.preferredWidth: Metrics.symbol
            color: row.isSettled ? Colors.success : Colors.warning
            name: row.isSettled ? "circle-check" : "circle"
        }
        Column {
            Layout.fillWidth: true

            Label {
                elide: Text.ElideMiddle
                text: row.path
                width: parent.width

                Accessible.ignored: true
            }
            Label {
                color: row.isSettled ? Colors.success : Colors.warning
                font: Typography.small
                text: row.stateText
                width: parent.width

                Accessible.ignored: true
            }
        }
    }
}
