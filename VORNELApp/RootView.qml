import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What the window shows, by the phase of the application. */
FocusScope {
    id: root

    required property AppModel model

    Component.onCompleted: model.retryStart()

    ScreenLoader {
        id: screens

        anchors.fill: parent
        model: root.model
        screen: {
            switch (root.model.phase.name) {
            case AppStates.PhaseName.onboarding:
                return "OnboardingView.qml";
            case AppStates.PhaseName.ready:
                return "WorkspaceShellView.qml";
            case AppStates.PhaseName.failed:
                return "FailureView.qml";
            default:
                return "LaunchView.qml";
            }
        }
    }
    ErrorPanel {
        anchors.bottom: parent.bottom
        anchors.margins: Metrics.huge
        anchors.right: parent.right
        remedy: root.model.isSynchronizationIncomplete && root.model.selectedDestination !== AppStates.Destination.needsAttention ? "À réparer" : ""
        text: root.model.errorMessage
        width: Math.min(640, parent.width - 2 * Metrics.huge)
        onDismissed: {
            root.model.clearError();
            screens.forceActiveFocus();
        }
        onRemedied: root.model.departure.leave(() => {
            root.model.clearError();
            root.model.closeSkill();
            root.model.selectedDestination = AppStates.Destination.needsAttention;
            screens.forceActiveFocus();
        })
    }
}
