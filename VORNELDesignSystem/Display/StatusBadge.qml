import QtQuick

/** A state in a word or two, with a dot in its colour. */
Rectangle {
    id: badge

    enum Tone { Neutral, Accent, Success, Warning, Danger }

    required property string text
    property int tone: StatusBadge.Neutral

    readonly property color hue: [Colors.secondary, Colors.accent, Colors.success, Colors.warning, Colors.danger][tone]

    implicitWidth: row.implicitWidth + 2 * Metrics.medium
    implicitHeight: 24
    color: Colors.tint(hue)
    radius: height / 2

    Accessible.name: text
    Accessible.role: Accessible.StaticText

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Metrics.small

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            color: badge.hue
            height: 6
            radius: 3
            width: 6
        }
        Text {
            color: badge.hue
            font: Typography.small
            renderType: Text.NativeRendering
            text: badge.text
        }
    }
}
