#pragma once

#include "Outcome.h"

#include <VORNELCore/Services/Undoing.h>

#include <QCoro/QCoroTask>
#include <QObject>

#include <exception>

namespace vornel {

/// The operations that run, how the last action failed, what the last one confirmed, and which one can be
/// taken back.
class Operations : public QObject
{
    Q_OBJECT

public:
    /// Counts an operation among those that run, for as long as it lives.
    class Running
    {
    public:
        explicit Running(Operations &operations) : m_operations(operations) { m_operations.count(1); }
        ~Running() { m_operations.count(-1); }
        Q_DISABLE_COPY_MOVE(Running)

    private:
        Operations &m_operations;
    };

    explicit Operations(const Undoing &undoing) : m_undoing(undoing) {}

    /// Whether any operation runs.
    bool isBusy() const { return m_count > 0; }

    /// Whether an action of the user runs.
    bool isWorking() const { return m_isWorking; }

    /// What the user reads about the last failure; empty without one.
    const QString &errorMessage() const { return m_failure.message; }

    /// Whether all that failed last is that an assistant got no copy.
    bool isSynchronizationIncomplete() const { return m_failure.isSynchronizationIncomplete(); }

    /// A short confirmation in capitals; empty without one.
    const QString &confirmation() const { return m_confirmation; }

    /// The action that can be taken back, if the confirmation is about one; null otherwise.
    const QUuid &confirmedStep() const { return m_confirmedStep; }

    /// The action that can be taken back now.
    const std::optional<UndoStep> &undoableStep() const { return m_undoableStep; }

    /// Runs an action, which returns a task: working while it does, and its failure shown.
    template <typename Action>
    QCoro::Task<Outcome> perform(Action action)
    {
        const Running running(*this);
        setWorking(true);
        clearError();
        Outcome outcome;
        try {
            co_await action();
        } catch (const std::exception &error) {
            outcome = fail(error);
        }
        followStep();
        setWorking(false);
        co_return outcome;
    }

    /// Shows a failure in place of the last one.
    Outcome fail(const std::exception &error);
    void showFailure(const Outcome &failure);

    /// Forgets the last failure; or only if it is this one, and not another's by now.
    void clearError() { showFailure({}); }
    void dismiss(const Outcome &failure);

    /// Shows a confirmation; `confirmed` follows also where it reads like the one before.
    void confirm(const QString &text);
    void clearConfirmation();

    /// Returns once no operation runs.
    void wait() const;

Q_SIGNALS:
    void isBusyChanged();
    void isWorkingChanged();
    void errorMessageChanged();
    void isSynchronizationIncompleteChanged();
    void confirmationChanged();
    void undoableStepChanged();
    void confirmed();

private:
    void count(int change);
    void setWorking(bool isWorking);
    void followStep();

    const Undoing &m_undoing;
    int m_count = 0;
    bool m_isWorking = false;
    Outcome m_failure;
    QString m_confirmation;
    QUuid m_confirmedStep;
    std::optional<UndoStep> m_undoableStep;
};

} // namespace vornel
