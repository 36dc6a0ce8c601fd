import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** A file or folder of a skill. */
T.ItemDelegate {
    id: row

    required property int index
    required property string name
    required property string path
    required property string symbol
    required property int depth
    required property bool isFolder
    required property bool isOpen
    required property string selectedFile
    required property bool isModified

    readonly property bool isSelected: path === selectedFile

    /** The folder is to be opened, or closed. */
    signal openAsked(isOpen: bool)

    signal menuAsked(place: point)

    implicitHeight: 32
    focusPolicy: Qt.ClickFocus
    highlighted: activeFocus
    hoverEnabled: true
    leftPadding: Metrics.small + depth * Metrics.large
    rightPadding: Metrics.small + (isModified ? mark.width + Metrics.small : 0)
    text: name
    onActiveFocusChanged: if (activeFocus && index >= 0) ListView.view.currentIndex = index // it is -1 once the row goes

    Accessible.description: {
        if (isFolder)
            return isOpen ? "dossier ouvert" : "dossier fermé";
        return (isSelected ? "affiché" : "") + (isSelected && isModified ? ", " : "") + (isModified ? "modifié, non enregistré" : "");
    }
    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onEnterPressed: clicked()
    Keys.onLeftPressed: openAsked(false)
    Keys.onReturnPressed: clicked()
    Keys.onRightPressed: openAsked(true)

    Rectangle {
        id: mark

        anchors.right: parent.right
        anchors.rightMargin: Metrics.small
        anchors.verticalCenter: parent.verticalCenter
        color: Colors.warning
        height: width
        radius: width / 2
        visible: row.isModified
        width: 7
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: eventPoint => {
            row.forceActiveFocus(Qt.MouseFocusReason);
            row.menuAsked(eventPoint.position);
        }
    }

    background: Rectangle {
        color: row.isSelected ? Colors.tint(Colors.accent) : row.hovered ? Colors.hover : "transparent"
        radius: Metrics.controlRadius

        Rectangle {
            anchors.fill: parent
            border.color: Colors.accent
            border.width: Metrics.focusWidth
            color: "transparent"
            radius: parent.radius
            visible: row.visualFocus
        }
    }
    contentItem: Row {
        spacing: Metrics.small

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            color: row.isSelected ? Colors.accent : Colors.secondary
            height: Metrics.symbol
            name: row.symbol
            width: Metrics.symbol
        }
        Text {
            anchors.verticalCenter: parent.verticalCenter
            color: row.isSelected ? Colors.text : Colors.secondary
            elide: Text.ElideMiddle
            font: Typography.body
            maximumLineCount: 1
            renderType: Text.NativeRendering
            text: row.text
            textFormat: Text.PlainText
            width: row.availableWidth - x
        }
    }
}
