#pragma once

#include "Departure.h"

namespace vornel {

/// Guards a departure, which outlives it, for as long as there is something to lose, and asks when the user
/// wants to leave.
class DepartureGuard : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        vornel::Departure *departure READ departure WRITE setDeparture NOTIFY departureChanged REQUIRED)
    Q_PROPERTY(bool isActive READ isActive WRITE setActive NOTIFY isActiveChanged)

public:
    using QObject::QObject;
    ~DepartureGuard() override;
    Q_DISABLE_COPY_MOVE(DepartureGuard)

    Departure *departure() const { return m_departure; }
    void setDeparture(Departure *departure);

    bool isActive() const { return m_isActive; }
    void setActive(bool isActive);

Q_SIGNALS:
    void departureChanged();
    void isActiveChanged();

    /// The departure waits for the user's decision.
    void asked();

private:
    void guard(bool isActive) const;

    Departure *m_departure = nullptr;
    bool m_isActive = false;
};

} // namespace vornel
