#pragma once

#include <QLocalServer>
#include <QLockFile>

#include <functional>
#include <memory>

class QDeadlineTimer;

namespace vornel {

/// Sees to it that this user has one process of a name, the one with the window. A later one hands its wish
/// for a window over to it.
class SingleInstance
{
public:
    /// Brings the window to the front, and tells whether there still is one. `token` is what the desktop gave
    /// the process that asks, so that the window may take the keyboard.
    using Raise = std::function<bool(const QByteArray &token)>;

    /// `folder` must exist and belong to the user; files in it bear `name`.
    SingleInstance(const QString &folder, const QString &name);

    /// Whether this process is to open the window: it is the only one, or the other doesn't answer, or the
    /// folder lets nobody know. Otherwise the other has raised its window. One that just starts or ends is
    /// waited for.
    bool opensWindow(const QByteArray &token);

    /// Answers later processes from now on.
    void serve(const Raise &raise);

    /// Answers no more: the window goes. Who asks now waits for the end of this process.
    void retire() { m_server.reset(); }

private:
    bool ask(const QByteArray &token, const QDeadlineTimer &patience) const;
    void hear(const Raise &raise);

    const QString m_socket;
    QLockFile m_lock;
    std::unique_ptr<QLocalServer> m_server; // after the lock, whose next holder listens at the same place
};

} // namespace vornel
