#include "DepartureGuard.h"

#include <utility>

namespace vornel {

DepartureGuard::~DepartureGuard()
{
    guard(false);
}

void DepartureGuard::setDeparture(Departure *departure)
{
    m_departure = departure;
    connect(departure, &Departure::isPendingChanged, this, [this] {
        if (m_isActive && m_departure->isPending())
            Q_EMIT asked();
    });
    guard(m_isActive);
    Q_EMIT departureChanged();
}

void DepartureGuard::setActive(bool isActive)
{
    if (std::exchange(m_isActive, isActive) == isActive)
        return;
    guard(isActive);
    Q_EMIT isActiveChanged();
}

void DepartureGuard::guard(bool isActive) const
{
    if (m_departure != nullptr)
        m_departure->setGuarded(this, isActive);
}

} // namespace vornel
