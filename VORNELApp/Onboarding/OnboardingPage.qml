import QtQuick
import VORNELApp
import VORNELDesignSystem

/** One page that tells something: what it says on the left, its picture on the right. */
FocusScope {
    id: page

    required property AppModel model

    readonly property OnboardingStory story: stories[Math.min(model.onboardingStep, stories.length - 1)]
    readonly property list<OnboardingStory> stories: [
        OnboardingStory {
            label: "BIBLIOTHÈQUE"
            subtitle: "Vos compétences restent organisées."
            symbol: "grid-2x2"
            title: "Tout au même\nendroit."
        },
        OnboardingStory {
            label: "REPÈRES"
            subtitle: "Une carte. Un rôle. Un état."
            symbol: "layout-grid"
            title: "Trouvez ce qu’il\nvous faut."
        },
        OnboardingStory {
            label: "À JOUR"
            subtitle: "Vos assistants partagent la même version."
            symbol: "refresh-cw"
            title: "Toujours\ndisponible."
        },
        OnboardingStory {
            label: "PROTÉGÉ"
            subtitle: "Historique. Corbeille. Restauration."
            symbol: "shield-half"
            title: "Rien ne\ndisparaît."
        }
    ]

    Column {
        id: text

        anchors.left: parent.left
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
            maximumLineCount: 2
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
            onClicked: page.model.advanceOnboarding()
        }
    }
    ProductGlyph {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        height: width
        symbol: page.story.symbol
        width: Math.min(400, parent.height * 0.8, parent.width * 0.36)
    }
}
