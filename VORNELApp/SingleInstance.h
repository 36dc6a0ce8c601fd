#pragma once

#include <QLocalServer>
#include <QLockFile>

namespace vornel {

/// Whether this process is the first of its name that this user runs. A later one hands its wish for a window
/// over to the first one.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// `folder` must exist and belong to the user; files in it bear `name`.
    SingleInstance(const QString &folder, const QString &name);

    /// Also when the folder doesn't let anyone know.
    bool isFirst() const { return m_isFirst; }

    /// Asks the first process to raise its window; tells whether it has heard. `token` is what the desktop
    /// gave this process, so that it may take the keyboard.
    bool askForWindow(const QByteArray &token) const;

Q_SIGNALS:
    /// A later process of this name asks for the window.
    void windowAsked(const QByteArray &token);

private:
    void listen();
    void hear();

    const QString m_socket;
    QLockFile m_lock;
    const bool m_isFirst;
    QLocalServer m_server;
};

} // namespace vornel
