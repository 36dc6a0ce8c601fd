import QtQuick

/** Some components under a name. */
Column {
    id: section

    required property string name
    default property alias items: content.data

    spacing: Metrics.medium
    width: parent?.width ?? 0

    Label {
        color: Colors.secondary
        font: Typography.label
        text: section.name
    }
    Flow {
        id: content

        spacing: Metrics.large
        width: parent.width
    }
}
