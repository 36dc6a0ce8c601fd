#include "Departure.h"

#include <utility>

namespace vornel {

void Departure::setGuarded(bool isGuarded)
{
    if (std::exchange(m_isGuarded, isGuarded) != isGuarded)
        Q_EMIT isGuardedChanged();
}

void Departure::leave(const QJSValue &action)
{
    if (m_isGuarded)
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

void Departure::setAction(const QJSValue &action)
{
    m_action = action;
    Q_EMIT isPendingChanged();
}

} // namespace vornel
