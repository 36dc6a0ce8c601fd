import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** A problem: how grave it is, where, and what mends it. */
T.ItemDelegate {
    id: row

    required property int index
    required property foundProblem record

    /** Whether it has two lines at most. */
    property bool isShort: false

    implicitHeight: implicitContentHeight + 2 * Metrics.small
    focusPolicy: Qt.NoFocus
    horizontalPadding: Metrics.large
    hoverEnabled: true
    text: record.message

    Accessible.name: (record.isError ? "Erreur, " : "Conseil, ") + (record.place === "" ? "" : record.place + ", ") + text
    Accessible.onPressAction: if (enabled) clicked()

    background: Rectangle {
        border.color: Colors.accent
        border.width: row.visualFocus ? Metrics.focusWidth : 0
        color: row.highlighted ? Colors.tint(Colors.accent) : row.hovered ? Colors.hover : "transparent"
        radius: Metrics.controlRadius
    }
    contentItem: RowLayout {
        spacing: Metrics.medium

        Symbol {
            Layout.preferredHeight: Metrics.symbol
            Layout.preferredWidth: Metrics.symbol
            color: row.record.isError ? Colors.danger : Colors.secondary
            name: row.record.isError ? "triangle-alert" : "info"
        }
        Label {
            Layout.maximumWidth: row.width / 3
            color: Colors.secondary
            elide: Text.ElideMiddle
            font: Typography.small
            text: row.record.place
            visible: text !== ""

            Accessible.ignored: true
        }
        Label {
            Layout.fillWidth: true
            font: Typography.small
            elide: row.isShort ? Text.ElideRight : Text.ElideNone
            maximumLineCount: row.isShort ? 2 : 20
            text: row.record.message
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.Wrap

            Accessible.ignored: true
        }
    }
}
