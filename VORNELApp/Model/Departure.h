#pragma once

#include <QJSValue>
#include <QObject>
#include <QSet>
#include <QtQml/qqmlregistration.h>

namespace vornel {

/// Stands between the user and whatever would leave unsaved edits behind: while it is guarded, an action that
/// leaves waits until the user has decided.
class Departure : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the model")
    Q_PROPERTY(bool isGuarded READ isGuarded NOTIFY isGuardedChanged)
    Q_PROPERTY(bool isPending READ isPending NOTIFY isPendingChanged)
    Q_PROPERTY(bool isForced READ isForced NOTIFY forced)

public:
    using QObject::QObject;

    bool isGuarded() const { return !m_isForced && !m_guards.isEmpty(); }

    /// Whether `guard` holds edits that would be lost. It must say so no more before it goes.
    void setGuarded(const QObject *guard, bool isGuarded);

    /// Whether an action waits for the user's decision.
    bool isPending() const { return !m_action.isUndefined(); }

    /// Runs `action` at once or, while guarded, once the user has let it go on. A later one replaces it.
    Q_INVOKABLE void leave(const QJSValue &action);

    /// The user goes: runs what waits.
    Q_INVOKABLE void resume();

    /// The user stays: forgets what waits.
    Q_INVOKABLE void stay();

    /// The program has to end, and asks nothing: whoever holds edits keeps them now. Nothing is guarded from
    /// then on.
    Q_INVOKABLE void force();

    bool isForced() const { return m_isForced; }

    /// What could not be kept when the program had to end, as the user reads it; empty without that.
    QString loss() const { return m_loss; }
    void setLoss(const QString &loss) { m_loss = loss; }

Q_SIGNALS:
    void isGuardedChanged();
    void isPendingChanged();
    void forced();

private:
    void setAction(const QJSValue &action);

    QSet<const QObject *> m_guards;
    QJSValue m_action;
    bool m_isForced = false;
    QString m_loss;
};

} // namespace vornel
