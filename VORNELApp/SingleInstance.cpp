#include "SingleInstance.h"

#include <QLocalSocket>

using namespace Qt::StringLiterals;

namespace vornel {

namespace {

constexpr int patience = 2'000; // milliseconds; a process that just starts may not listen yet

bool take(QLockFile &lock)
{
    lock.setStaleLockTime(0); // however long its holder runs, only its end frees the name
    return lock.tryLock() || lock.error() != QLockFile::LockFailedError;
}

} // namespace

SingleInstance::SingleInstance(const QString &folder, const QString &name)
    : m_socket(folder + u'/' + name + u".socket"_s),
      m_lock(folder + u'/' + name + u".lock"_s),
      m_isFirst(take(m_lock))
{
    if (m_isFirst)
        listen();
}

bool SingleInstance::askForWindow(const QByteArray &token) const
{
    QLocalSocket socket;
    socket.connectToServer(m_socket);
    if (!socket.waitForConnected(patience))
        return false;
    socket.write(token + '\n');
    return socket.waitForReadyRead(patience);
}

void SingleInstance::listen()
{
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::hear);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(m_socket); // of a process that came to a sudden end
    m_server.listen(m_socket);
}

void SingleInstance::hear()
{
    QLocalSocket *socket = m_server.nextPendingConnection();
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
        if (!socket->canReadLine())
            return;
        Q_EMIT windowAsked(socket->readLine().chopped(1));
        socket->write("\n");
        socket->flush();
    });
}

} // namespace vornel
