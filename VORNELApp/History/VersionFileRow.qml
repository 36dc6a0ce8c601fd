import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import VORNELDesignSystem

/** A file of a version, with what marks it where it differs. */
T.ItemDelegate {
    id: row

    required property int index
    required property string path
    required property string symbol
    required property string description
    required property bool isInVersion

    readonly property bool isFolder: path.endsWith("/")
    readonly property color hue: symbol === "+" ? Colors.success : symbol === "−" ? Colors.danger : Colors.warning

    implicitHeight: 32
    focusPolicy: Qt.NoFocus
    highlighted: ListView.isCurrentItem
    horizontalPadding: Metrics.small
    hoverEnabled: true
    text: path

    Accessible.name: path + ", " + description
    Accessible.onPressAction: if (enabled) clicked()

    background: Rectangle {
        color: row.highlighted ? Colors.tint(Colors.accent) : row.hovered ? Colors.hover : "transparent"
        radius: Metrics.controlRadius
    }
    contentItem: RowLayout {
        spacing: Metrics.small

        Label {
            Layout.preferredWidth: Metrics.medium
            color: row.hue
            font: Typography.code
            text: row.symbol

            Accessible.ignored: true
        }
        Label {
            Layout.fillWidth: true
            color: row.symbol === "" ? Colors.secondary : Colors.text
            elide: Text.ElideMiddle
            text: row.path

            Accessible.ignored: true
        }
        Label {
            color: Colors.muted
            font: Typography.small
            text: row.description

            Accessible.ignored: true
        }
    }
}
