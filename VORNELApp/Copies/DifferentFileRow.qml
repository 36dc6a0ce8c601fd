import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/**
 * One file that differs: "+" where it is only on the new side, "−" where it is only on the old one. One that can be adopted
 * alone has a box, which Space ticks.
 */
T.ItemDelegate {
    id: row

    required property int index
    required property int target
    required property string path
    required property string symbol
    required property string description
    required property string assistant
    required property bool isAdoptable
    required property bool isChosen

    readonly property color hue: symbol === "+" ? Colors.success : symbol === "−" ? Colors.danger : Colors.warning

    signal toggled

    implicitHeight: 32
    focusPolicy: Qt.NoFocus
    highlighted: ListView.isCurrentItem
    hoverEnabled: true
    horizontalPadding: Metrics.small
    text: path

    Accessible.checkable: isAdoptable
    Accessible.checked: isChosen
    Accessible.name: path + ", " + description
    Accessible.onPressAction: if (enabled) clicked()
    Accessible.onToggleAction: toggled()
    Keys.onSpacePressed: toggled()

    background: Rectangle {
        color: row.highlighted ? Colors.tint(Colors.accent) : row.hovered ? Colors.hover : "transparent"
        radius: Metrics.controlRadius
    }
    contentItem: RowLayout {
        spacing: Metrics.small

        Symbol {
            Layout.preferredHeight: Metrics.symbol
            Layout.preferredWidth: Metrics.symbol
            color: row.isChosen ? Colors.accent : Colors.muted
            name: row.isChosen ? "circle-check" : "circle"
            visible: row.isAdoptable

            MouseArea {
                anchors.fill: parent
                anchors.margins: -Metrics.tiny
                onClicked: row.toggled()
            }
        }
        Text {
            color: row.hue
            font: Typography.code
            maximumLineCount: 1
            renderType: Text.NativeRendering
            text: row.symbol
        }
        Text {
            Layout.fillWidth: true
            color: Colors.text
            elide: Text.ElideMiddle
            font: Typography.body
            maximumLineCount: 1
            renderType: Text.NativeRendering
            text: row.text
            textFormat: Text.PlainText
        }
        Text {
            color: Colors.muted
            font: Typography.small
            maximumLineCount: 1
            renderType: Text.NativeRendering
            text: row.assistant
        }
    }
}
