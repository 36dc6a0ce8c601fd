import QtQuick
import VORNELApp
import VORNELDesignSystem

/** The pages that welcome a new user. The arrow keys turn them. */
FocusScope {
    id: onboarding

    required property AppModel model

    readonly property int step: model.onboardingStep
    readonly property bool isImporting: model.onboardingStep === AppStates.OnboardingStep.importSkills

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
    ScreenLoader {
        anchors.bottom: footer.top
        anchors.left: parent.left
        anchors.margins: Metrics.page
        anchors.right: parent.right
        anchors.top: header.bottom
        model: onboarding.model
        screen: onboarding.isImporting ? "ImportPage.qml" : "OnboardingPage.qml"
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
