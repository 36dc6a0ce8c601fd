import QtQuick
import VORNELDesignSystem

/** One page: what it says on the left, its picture on the right. */
FocusScope {
    id: page

    required property OnboardingStory story

    signal advanced

    Column {
        id: text

        anchors.left: parent.left
        anchors.leftMargin: Metrics.page
        anchors.verticalCenter: parent.verticalCenter
        spacing: Metrics.large
        width: parent.width * 0.5

        Label {
            color: Colors.accent
            font: Typography.label
            text: page.story.label
        }
        Label {
            font: Typography.display
            lineHeight: 1.1
            text: page.story.title
        }
        Label {
            color: Colors.secondary
            font: Typography.lead
            text: page.story.subtitle
        }
        Item {
            height: Metrics.large
            width: 1
        }
        ActionButton {
            focus: true
            isSymbolTrailing: true
            role: ActionButton.Primary
            symbol: "arrow-right"
            text: "Continuer"
            onClicked: page.advanced()
        }
    }
    ProductGlyph {
        anchors.right: parent.right
        anchors.rightMargin: Metrics.page
        anchors.verticalCenter: parent.verticalCenter
        height: width
        symbol: page.story.symbol
        width: Math.min(400, parent.height * 0.8, parent.width * 0.36)
    }
}
