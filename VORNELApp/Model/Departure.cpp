#include "Departure.h"

namespace vornel {

void Departure::setGuarded(const QObject *guard, bool isGuarded)
{
    const bool wasGuarded = this->isGuarded();
    if (isGuarded)
        m_guards.insert(guard);
    else
        m_guards.remove(guard);
    if (wasGuarded != this->isGuarded())
        Q_EMIT isGuardedChanged();
}

void Departure::leave(const QJSValue &action)
{
    if (isGuarded())
        setAction(action);
    else
        action.call();
}

void Departure::resume()
{
    const QJSValue action = m_action;
    setAction({});
    action.call();
}

void Departure::stay()
{
    setAction({});
}

void Departure::force()
{
    m_isForced = true;
    Q_EMIT forced();
}

void Departure::setAction(const QJSValue &action)
{
    m_action = action;
    Q_EMIT isPendingChanged();
}

} // namespace vornel
