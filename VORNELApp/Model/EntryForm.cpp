#include "EntryForm.h"

#include <utility>

namespace vornel {

void EntryForm::forgetRefusal()
{
    refuse({}, {});
}

void EntryForm::await(QCoro::Task<Outcome> request)
{
    forgetRefusal();
    setWaiting(true);
    follow(this, m_entry, std::move(request));
}

void EntryForm::beginAnew()
{
    ++m_entry;
    forgetRefusal();
    setWaiting(false);
}

/// Outlives the form, should its sheet go before the model is done.
QCoro::Task<> EntryForm::follow(QPointer<EntryForm> form, int entry, QCoro::Task<Outcome> request)
{
    const Outcome outcome = co_await request;
    if (!form.isNull() && form->m_entry == entry)
        form->conclude(outcome);
}

void EntryForm::conclude(const Outcome &outcome)
{
    setWaiting(false);
    if (outcome || outcome.isSynchronizationIncomplete()) { // then only an assistant has no copy yet, as the
                                                            // model's error says
        Q_EMIT accepted();
        return;
    }
    refuse(outcome.message, outcome.errorCase);
    if (m_model->errorMessage() == outcome.message) // and not another's
        m_model->clearError();
}

void EntryForm::refuse(const QString &reason, const QString &errorCase)
{
    m_refusalCase = errorCase;
    if (std::exchange(m_refusal, reason) != reason)
        Q_EMIT refusalChanged();
}

void EntryForm::setWaiting(bool isWaiting)
{
    if (std::exchange(m_isWaiting, isWaiting) != isWaiting)
        Q_EMIT isWaitingChanged();
}

} // namespace vornel
