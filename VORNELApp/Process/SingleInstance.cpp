#include "SingleInstance.h"

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>

#include <chrono>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr auto patienceInAll = 2s;
constexpr int pause = 20; // milliseconds before the next try

int milliseconds(const QDeadlineTimer &patience)
{
    return static_cast<int>(patience.remainingTime());
}

bool take(QLockFile &lock)
{
    return lock.tryLock() || lock.error() != QLockFile::LockFailedError;
}

} // namespace

SingleInstance::SingleInstance(const QString &folder, const QString &name)
    : m_socket(folder + u'/' + name + u".socket"_s), m_lock(folder + u'/' + name + u".lock"_s)
{
    m_lock.setStaleLockTime(0); // however long its holder runs, only its end frees the name
}

bool SingleInstance::opensWindow(const QByteArray &token)
{
    const QDeadlineTimer patience(patienceInAll);
    while (!take(m_lock)) {
        if (ask(token, patience))
            return false;
        if (patience.hasExpired())
            return true;
        QThread::msleep(pause);
    }
    return true;
}

bool SingleInstance::ask(const QByteArray &token, const QDeadlineTimer &patience) const
{
    QLocalSocket socket;
    socket.connectToServer(m_socket);
    if (!socket.waitForConnected(milliseconds(patience)))
        return false;
    socket.write(token + '\n');
    return socket.waitForReadyRead(milliseconds(patience));
}

void SingleInstance::serve(const Raise &raise)
{
    m_server = std::make_unique<QLocalServer>();
    QObject::connect(m_server.get(), &QLocalServer::newConnection, m_server.get(),
                     [this, raise] { hear(raise); });
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(m_socket); // of a process that came to a sudden end, or doesn't answer
    m_server->listen(m_socket);
}

void SingleInstance::hear(const Raise &raise)
{
    QLocalSocket *socket = m_server->nextPendingConnection();
    QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    QObject::connect(socket, &QLocalSocket::readyRead, socket, [socket, raise] {
        if (!socket->canReadLine())
            return;
        if (raise(socket->readLine().chopped(1)))
            socket->write("\n");
        socket->disconnectFromServer();
    });
}

} // namespace vornel
