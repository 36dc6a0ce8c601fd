import QtQuick

/** What the user gives, with its name above and, where there is one, a note below. A problem takes the place of the note. */
FocusScope {
    id: field

    required property string label
    property string note
    property string problem
    default property alias controls: controls.data

    /** What assistive tools tell of the control. */
    readonly property string explanation: problem === "" ? note : problem

    implicitHeight: column.height

    Column {
        id: column

        width: parent.width

        Label {
            bottomPadding: Metrics.small
            color: Colors.secondary
            font: Typography.small
            text: field.label

            Accessible.ignored: true
        }
        Column {
            id: controls

            spacing: Metrics.small
            width: parent.width
        }
        Label {
            color: Colors.secondary
            font: Typography.small
            text: field.note
            topPadding: Metrics.tiny + 2
            visible: field.note !== "" && field.problem === ""
            width: parent.width
            wrapMode: Text.Wrap

            Accessible.ignored: true
        }
        Label {
            color: Colors.danger
            font: Typography.small
            text: field.problem
            topPadding: Metrics.tiny + 2
            visible: field.problem !== ""
            width: parent.width
            wrapMode: Text.Wrap

            Accessible.role: Accessible.AlertMessage
        }
    }
}
