#include "Operations.h"

#include <QEventLoop>

#include <utility>

namespace vornel {

Outcome Operations::fail(const std::exception &error)
{
    Outcome outcome = Outcome::failedWith(error);
    showFailure(outcome);
    return outcome;
}

void Operations::showFailure(const Outcome &failure)
{
    const Outcome former = std::exchange(m_failure, failure);
    if (former.isSynchronizationIncomplete() != failure.isSynchronizationIncomplete())
        Q_EMIT isSynchronizationIncompleteChanged();
    if (former.message != failure.message)
        Q_EMIT errorMessageChanged();
}

void Operations::dismiss(const Outcome &failure)
{
    if (m_failure.message == failure.message)
        clearError();
}

void Operations::confirm(const QString &text)
{
    const std::optional<UndoStep> former = m_undoableStep;
    followStep();
    const bool isUndoable = m_undoableStep && m_undoableStep != former;
    m_confirmedStep = isUndoable ? m_undoableStep->id : QUuid();
    if (std::exchange(m_confirmation, text) != text)
        Q_EMIT confirmationChanged();
    Q_EMIT confirmed();
}

void Operations::clearConfirmation()
{
    if (!std::exchange(m_confirmation, QString()).isEmpty())
        Q_EMIT confirmationChanged();
}

void Operations::followStep()
{
    const std::optional<UndoStep> step = m_undoing.undoableStep();
    if (std::exchange(m_undoableStep, step) != step)
        Q_EMIT undoableStepChanged();
}

void Operations::wait() const
{
    QEventLoop loop;
    connect(this, &Operations::isBusyChanged, &loop, &QEventLoop::quit);
    if (isBusy())
        loop.exec();
}

void Operations::count(int change)
{
    const bool wasBusy = isBusy();
    m_count += change;
    if (isBusy() != wasBusy)
        Q_EMIT isBusyChanged();
}

void Operations::setWorking(bool isWorking)
{
    if (std::exchange(m_isWorking, isWorking) != isWorking)
        Q_EMIT isWorkingChanged();
}

} // namespace vornel
