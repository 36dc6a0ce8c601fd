import QtQuick

/** Asks before something happens. When it opens, the button that cancels has the keyboard. */
Sheet {
    id: dialog

    required property string message

    /** What it is about, where the title doesn't name it. */
    property string subject

    required property string acceptText
    property string rejectText: "Annuler"
    property bool isDestructive: false

    /** Whether the dialog is closing because it was accepted. */
    property bool isAccepted: false

    signal accepted

    firstFocus: reject
    implicitWidth: Math.min(440, parent.width - 2 * Metrics.page)
    onAboutToShow: isAccepted = false

    Label {
        text: dialog.subject
        visible: text !== ""
        width: parent.width
        wrapMode: Text.Wrap
    }
    Label {
        bottomPadding: Metrics.small
        color: Colors.secondary
        lineHeight: 1.35
        text: dialog.message
        width: parent.width
        wrapMode: Text.Wrap
    }
    Row {
        anchors.right: parent.right
        spacing: Metrics.medium

        ActionButton {
            id: reject

            text: dialog.rejectText
            onClicked: dialog.close()
        }
        ActionButton {
            role: dialog.isDestructive ? ActionButton.Destructive : ActionButton.Primary
            text: dialog.acceptText
            onClicked: {
                dialog.isAccepted = true;
                dialog.close();
                dialog.accepted();
            }
        }
    }
}
