pragma ComponentBehavior: Bound

import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What the window shows, by the phase of the application. */
FocusScope {
    id: root

    required property AppModel model

    Component.onCompleted: model.retryStart()

    Loader {
        anchors.fill: parent
        focus: true
        sourceComponent: {
            switch (root.model.phase.name) {
            case AppStates.PhaseName.launching:
                return launching;
            case AppStates.PhaseName.failed:
                return failed;
            case AppStates.PhaseName.onboarding:
                return onboarding;
            default:
                return shell;
            }
        }
    }
    Component {
        id: launching

        LaunchView {}
    }
    Component {
        id: failed

        FailureView {
            model: root.model
        }
    }
    Component {
        id: onboarding

        OnboardingView {
            model: root.model
        }
    }
    Component {
        id: shell

        WorkspaceShellView {
            model: root.model
        }
    }
    ErrorPanel {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Metrics.huge
        anchors.horizontalCenter: parent.horizontalCenter
        text: root.model.errorMessage
        width: Math.min(640, parent.width - 2 * Metrics.huge)
        onDismissed: root.model.clearError()
    }
}
