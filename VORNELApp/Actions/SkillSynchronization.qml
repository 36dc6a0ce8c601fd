import QtQuick
import QtQuick.Templates as T
import VORNELApp
import VORNELDesignSystem

/**
 * Synchronises skills of a list once their copies have been looked at, and asks before it replaces anything edited.
 * Opens nothing over another screen, or while a skill is being opened.
 */
Item {
    id: synchronization

    required property AppModel model

    readonly property alias isSurveying: survey.isRunning
    readonly property bool isWatched: visible && !model.isDetailLoading

    /** A sheet or a question has closed. */
    signal closed

    /** Shows what one skill's copies would lose; for several, only says how many copies would. */
    function synchronize(ids: var): void {
        if (model.isWorking)
            return;
        if (ids.length !== 1)
            return survey.begin(ids);
        model.replacement.synchronize(ids[0]);
    }
    /** Asks in any case. */
    function synchronizeAll(ids: var): void {
        survey.begin(ids);
    }
    /** Whether a sheet or a menu has the keyboard. */
    function isCovered(): bool {
        for (let item = Window.activeFocusItem; item; item = item.parent) {
            if (item === T.Overlay.overlay)
                return true;
        }
        return false;
    }

    onIsWatchedChanged: {
        if (isWatched)
            return;
        survey.forget();
        model.replacement.decline();
    }

    DifferencesSheet {
        model: synchronization.model
        replacement: synchronization.model.replacement
        onClosed: synchronization.closed()
    }
    CopySurvey {
        id: survey

        model: synchronization.model
        onFinished: {
            if (synchronization.model.isWorking)
                repeat(); // what is being done may change what was seen
            else if (!synchronization.isCovered())
                question.open();
        }
    }
    SynchronizationQuestion {
        id: question

        survey: survey
        onClosed: synchronization.closed()
    }
}
