import QtQuick

/** A number and what it counts. */
Surface {
    id: card

    required property int value
    required property string label
    property color hue: Colors.text

    implicitWidth: 160
    implicitHeight: 92

    Accessible.name: value + " " + label
    Accessible.role: Accessible.StaticText

    Column {
        anchors.left: parent.left
        anchors.leftMargin: Metrics.large
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.tiny

        Text {
            color: card.hue
            font: Typography.display
            renderType: Text.NativeRendering
            text: card.value
        }
        Text {
            color: Colors.secondary
            font: Typography.label
            renderType: Text.NativeRendering
            text: card.label
        }
    }
}
