import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/** The chosen skill: its name and its instructions. */
FocusScope {
    id: editor

    required property AppModel model

    readonly property var detail: model.selectedSkill

    ActionButton {
        id: back

        anchors.left: parent.left
        anchors.margins: Metrics.huge
        anchors.top: parent.top
        focus: true
        symbol: "chevron-left"
        text: "Bibliothèque"

        Accessible.name: "Retour à la bibliothèque"
        onClicked: editor.model.closeSkill()
    }
    Label {
        anchors.left: back.right
        anchors.leftMargin: Metrics.large
        anchors.right: parent.right
        anchors.rightMargin: Metrics.huge
        anchors.verticalCenter: back.verticalCenter
        font: Typography.title
        text: editor.detail?.manifest.displayName ?? ""
    }
    Surface {
        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: Metrics.huge
        anchors.right: parent.right
        anchors.top: back.bottom
        border.color: scroller.activeFocus ? Colors.accent : Colors.line

        Flickable {
            id: scroller

            anchors.fill: parent
            anchors.margins: Metrics.large
            activeFocusOnTab: true
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            contentHeight: text.height
            contentWidth: width

            Accessible.name: "Instructions de la compétence"
            Accessible.role: Accessible.Document
            Keys.onDownPressed: T.ScrollBar.vertical.increase()
            Keys.onUpPressed: T.ScrollBar.vertical.decrease()

            T.ScrollBar.vertical: ScrollRail {}

            Label {
                id: text

                color: Colors.secondary
                font: Typography.code
                text: editor.detail?.skillMD ?? ""
                width: parent.width
                wrapMode: Text.Wrap
            }
        }
    }
}
