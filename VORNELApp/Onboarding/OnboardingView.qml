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

    /** A page on which something runs can't be turned. */
    function advance(): void {
        if (!model.isWorking)
            model.advanceOnboarding();
    }
    function retreat(): void {
        if (!model.isWorking)
            model.retreatOnboarding();
    }

    opacity: hasAppeared ? 1 : 0
    Component.onCompleted: hasAppeared = true
    Keys.onLeftPressed: retreat()
    Keys.onRightPressed: advance()

    Behavior on opacity {
        NumberAnimation {
            duration: Motion.slow
            easing.type: Motion.easing
        }
    }

    OnboardingHeader {
        id: header

        anchors.left: parent.left
        anchors.leftMargin: 2 * Metrics.page
        anchors.margins: Metrics.page
        anchors.right: parent.right
        anchors.rightMargin: 2 * Metrics.page
        anchors.top: parent.top
        step: onboarding.step
    }
    ScreenLoader {
        id: page

        anchors.bottom: footer.top
        anchors.left: parent.left
        anchors.leftMargin: 2 * Metrics.page
        anchors.margins: Metrics.page
        anchors.right: parent.right
        anchors.rightMargin: 2 * Metrics.page
        anchors.top: header.bottom
        model: onboarding.model
        screen: onboarding.isImporting ? "ImportPage.qml" : "OnboardingPage.qml"
    }
    OnboardingFooter {
        id: footer

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.leftMargin: 2 * Metrics.page
        anchors.margins: Metrics.page
        anchors.right: parent.right
        anchors.rightMargin: 2 * Metrics.page
        canAdvance: !onboarding.isImporting
        canRetreat: onboarding.step > 0 && !onboarding.model.isWorking
        step: onboarding.step
        onAdvanced: onboarding.advance()
        onAbandoned: page.forceActiveFocus(Qt.TabFocusReason)
        onRetreated: onboarding.retreat()
    }
}
