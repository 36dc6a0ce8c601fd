import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import VORNELDesignSystem

/** A version of a skill: when and what it was. One that was replaced without being a revision is marked. */
T.ItemDelegate {
    id: row

    required property int index
    required property string entry
    required property string time
    required property string title
    required property string description
    required property bool isReplaced
    required property bool isCurrent

    /** Whether it is the version that is looked at. */
    property bool isChosen: false

    implicitHeight: Metrics.controlHeight
    focusPolicy: Qt.ClickFocus
    highlighted: isChosen
    horizontalPadding: Metrics.small
    hoverEnabled: true
    text: title

    Accessible.description: isChosen ? "affichée" : ""
    Accessible.name: description + (isCurrent ? ", version actuelle" : "")
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onEnterPressed: clicked()
    Keys.onReturnPressed: clicked()

    background: Rectangle {
        color: row.isChosen ? Colors.tint(Colors.accent) : row.hovered ? Colors.hover : "transparent"
        radius: Metrics.controlRadius

        Rectangle {
            anchors.fill: parent
            border.color: Colors.accent
            border.width: Metrics.focusWidth
            color: "transparent"
            radius: parent.radius
            visible: row.activeFocus && row.focusReason !== Qt.MouseFocusReason // also where the rows came after the keyboard
        }
    }
    contentItem: RowLayout {
        spacing: Metrics.small

        Label {
            color: Colors.muted
            font: Typography.small
            text: row.time

            Accessible.ignored: true
        }
        Label {
            Layout.fillWidth: true
            color: row.isReplaced ? Colors.warning : Colors.text
            text: row.title

            Accessible.ignored: true
        }
        Label {
            color: Colors.success
            font: Typography.small
            text: "actuelle"
            visible: row.isCurrent

            Accessible.ignored: true
        }
    }
}
