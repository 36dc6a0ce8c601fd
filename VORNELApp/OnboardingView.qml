pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The pages that welcome a new user. The arrow keys turn them. */
FocusScope {
    id: onboarding

    required property AppModel model

    readonly property int step: model.onboardingStep
    readonly property bool isImporting: model.onboardingStep === AppStates.OnboardingStep.importSkills
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

    property bool hasAppeared: false

    opacity: hasAppeared ? 1 : 0
    Component.onCompleted: hasAppeared = true
    Keys.onLeftPressed: model.retreatOnboarding()
    Keys.onRightPressed: model.advanceOnboarding()

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.slow
            easing.type: Motion.easing
        }
    }

    OnboardingHeader {
        id: header

        anchors.left: parent.left
        anchors.margins: Metrics.page
        anchors.right: parent.right
        anchors.top: parent.top
        step: onboarding.step
    }
    Loader {
        anchors.bottom: footer.top
        anchors.left: parent.left
        anchors.margins: Metrics.page
        anchors.right: parent.right
        anchors.top: header.bottom
        focus: true
        sourceComponent: onboarding.isImporting ? importPage : storyPage
    }
    Component {
        id: storyPage

        OnboardingPage {
            story: onboarding.stories[Math.min(onboarding.step, onboarding.stories.length - 1)]
            onAdvanced: onboarding.model.advanceOnboarding()
        }
    }
    Component {
        id: importPage

        ImportPage {
            model: onboarding.model
        }
    }
    OnboardingFooter {
        id: footer

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: Metrics.page
        anchors.right: parent.right
        canAdvance: !onboarding.isImporting
        canRetreat: onboarding.step > 0
        step: onboarding.step
        onAdvanced: onboarding.model.advanceOnboarding()
        onRetreated: onboarding.model.retreatOnboarding()
    }
}
