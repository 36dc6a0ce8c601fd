#include "Departure.h"

#include <utility>

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

void Departure::leave(Exit exit)
{
    if (isGuarded())
        setExit(exit);
    else
        Q_EMIT left(exit);
}

void Departure::leaveFor(Destination destination)
{
    m_destination = destination;
    leave(ToDestination);
}

void Departure::resume()
{
    if (const Exit exit = std::exchange(m_exit, Stay); exit != Stay)
        Q_EMIT left(exit);
    Q_EMIT isPendingChanged();
}

void Departure::stay()
{
    setExit(Stay);
}

void Departure::force()
{
    m_isForced = true;
    Q_EMIT forced();
}

void Departure::setExit(Exit exit)
{
    m_exit = exit;
    Q_EMIT isPendingChanged();
}

} // namespace vornel
