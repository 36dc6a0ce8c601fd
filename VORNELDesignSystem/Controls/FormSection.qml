import QtQuick

/** Fields that belong together, below a title. */
Column {
    id: section

    required property string title

    spacing: Metrics.large

    Label {
        color: Colors.text
        font: Typography.section
        text: section.title
        width: parent.width

        Accessible.role: Accessible.Heading
    }
}
