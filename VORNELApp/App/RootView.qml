import QtQuick
import VORNELApp
import VORNELDesignSystem

/** What the window shows, by the phase of the application. */
FocusScope {
    id: root

    required property AppModel model

    Component.onCompleted: model.retryStart()

    FirstFrame {
        id: firstFrame
    }
    ScreenLoader {
        id: screens

        anchors.bottom: failure.isWanted ? failure.top : parent.bottom
        anchors.bottomMargin: failure.isWanted ? Metrics.small : 0
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        model: root.model
        screen: {
            if (!firstFrame.isDrawn)
                return "LaunchView.qml";
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
    DeferredItem {
        id: failure

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.margins: Metrics.small
        anchors.right: parent.right
        file: "LastFailure.qml"
        isWanted: root.model.errorMessage !== ""
        properties: ({ model: root.model })
    }
    Connections {
        function onSettled() {
            screens.forceActiveFocus();
        }

        ignoreUnknownSignals: true
        target: failure.item
    }
}
