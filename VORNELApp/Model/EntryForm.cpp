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
    QCoro::connect(std::move(request), this, [this, entry = m_entry](const Outcome &outcome) {
        if (m_entry == entry)
            conclude(outcome);
    });
}

void EntryForm::beginAnew()
{
    ++m_entry;
    forgetRefusal();
    setWaiting(false);
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
    m_model->dismiss(outcome); // which the form tells itself
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
