#pragma once

#include <VORNELApp/Model/AppStates.h>

#include <QObject>
#include <QSet>
#include <QtQml/qqmlregistration.h>

namespace vornel {

/// Stands between the user and whatever would leave unsaved edits behind: while it is guarded, who wants to
/// leave waits until the user has decided.
class Departure : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the model")
    Q_PROPERTY(bool isGuarded READ isGuarded NOTIFY isGuardedChanged)
    Q_PROPERTY(bool isPending READ isPending NOTIFY isPendingChanged)
    Q_PROPERTY(bool isForced READ isForced NOTIFY forced)

public:
    /// Where the user goes: from the open skill to the list, to another destination, to a new skill, out of
    /// the form that is open, or out of the window.
    enum Exit { Stay, ToList, ToDestination, ToCreation, FromForm, FromWindow };
    Q_ENUM(Exit)

    using QObject::QObject;

    bool isGuarded() const { return !m_isForced && !m_guards.isEmpty(); }

    /// Whether `guard` holds edits that would be lost. Clear it before the guard is destroyed.
    void setGuarded(const QObject *guard, bool isGuarded);

    /// Whether the user is asked first.
    bool isPending() const { return m_exit != Stay; }

    /// Leaves at once or, while guarded, once the user has decided to: `left` follows. A later one replaces
    /// it.
    Q_INVOKABLE void leave(vornel::Departure::Exit exit);
    Q_INVOKABLE void leaveFor(vornel::AppStates::Destination destination);

    /// The user goes where he was about to.
    Q_INVOKABLE void resume();

    /// The user stays.
    Q_INVOKABLE void stay();

    /// The program has to end, and asks nothing: whoever holds edits keeps them now. Nothing is guarded from
    /// then on.
    Q_INVOKABLE void force();

    bool isForced() const { return m_isForced; }

    /// What could not be kept when the program had to end, as the user reads it; empty without that.
    QString loss() const { return m_loss; }
    void setLoss(const QString &loss) { m_loss = loss; }

    /// To which one the exit `ToDestination` leads.
    Destination destination() const { return m_destination; }

Q_SIGNALS:
    void isGuardedChanged();
    void isPendingChanged();
    void left(vornel::Departure::Exit exit);
    void forced();

private:
    void setExit(Exit exit);

    QSet<const QObject *> m_guards;
    Exit m_exit = Stay; ///< that waits for the user's decision
    Destination m_destination = Destination::library;
    bool m_isForced = false;
    QString m_loss;
};

} // namespace vornel
