import QtQuick

/** A short confirmation: a dot and a few words. */
Rectangle {
    id: capsule

    required property string text

    implicitWidth: Math.ceil(row.implicitWidth) + 2 * Metrics.medium
    implicitHeight: Metrics.controlHeight
    border.color: Colors.line
    border.width: Metrics.hairline
    color: Colors.raised
    radius: height / 2

    Accessible.name: text
    Accessible.role: Accessible.AlertMessage

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Metrics.small

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            color: Colors.success
            height: 8
            radius: 4
            width: 8
        }
        Text {
            color: Colors.text
            font: Typography.label
            maximumLineCount: 1
            renderType: Text.NativeRendering
            text: capsule.text
        }
    }
}
