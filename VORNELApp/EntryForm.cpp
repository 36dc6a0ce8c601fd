#include "EntryForm.h"

#include <utility>

namespace vornel {

void EntryForm::forgetRefusal()
{
    refuse({}, {});
}

void EntryForm::await(QCoro::Task<bool> request)
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
QCoro::Task<> EntryForm::follow(QPointer<EntryForm> form, int entry, QCoro::Task<bool> request)
{
    const bool succeeded = co_await request;
    if (!form.isNull() && form->m_entry == entry)
        form->conclude(succeeded);
}

void EntryForm::conclude(bool succeeded)
{
    setWaiting(false);
    if (succeeded || m_model->isSynchronizationIncomplete()) { // then only an assistant has no copy yet, as
                                                               // the model's error says
        Q_EMIT accepted();
        return;
    }
    refuse(m_model->errorMessage(), m_model->errorCase());
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
