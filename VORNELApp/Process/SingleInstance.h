#pragma once

#include <QLocalServer>
#include <QLockFile>

#include <functional>
#include <memory>

class QDeadlineTimer;

namespace vornel {

/// Makes sure that among this user's processes of the same name only one has a window. A later one asks it to
/// show that window, and ends.
class SingleInstance
{
public:
    /// Brings the window to the front, and tells whether there still is one. `token` is what the desktop gave
    /// the process that asks, so that the window may take the keyboard.
    using Raise = std::function<bool(const QByteArray &token)>;

    /// `folder` must exist and belong to the user; files in it bear `name`.
    SingleInstance(const QString &folder, const QString &name);

    /// Whether this process is to open the window: it is the only one, the other doesn't answer, or the
    /// folder can't be used to find out. Otherwise the other has raised its window. One that is just starting
    /// or ending is waited for.
    bool opensWindow(const QByteArray &token);

    /// Answers later processes from now on.
    void serve(const Raise &raise);

    /// Stops answering, since the window is going. A process that asks now waits until this one has ended.
    void retire() { m_server.reset(); }

private:
    bool ask(const QByteArray &token, const QDeadlineTimer &patience) const;
    void hear(const Raise &raise);

    const QString m_socket;
    QLockFile m_lock;
    std::unique_ptr<QLocalServer> m_server; // after the lock: closed before the next holder listens there
};

} // namespace vornel
