#pragma once

#include <QDBusConnection>
#include <QFile>
#include <QVariantMap>

namespace vornel {

/// Lets the user choose the application that opens a file, in a window of the desktop: its portal asks, and
/// gives the application what it may do with the open file. Deletes itself once that has ended.
class ApplicationChoice : public QObject
{
    Q_OBJECT

public:
    ApplicationChoice(const QDBusConnection &bus, const QFile &file, QObject *parent);

Q_SIGNALS:
    /// There is no portal, or it can't open the file. What the user doesn't want is no failure.
    void failed();

private Q_SLOTS:
    void conclude(uint response, const QVariantMap &results);
    void fail();

private:
    void ask(QDBusConnection bus, const QFile &file);
    void end(bool hasFailed);

    bool m_hasEnded = false; ///< whatever answer is still to come
};

} // namespace vornel
