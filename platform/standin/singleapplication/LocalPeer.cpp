#include "LocalPeer.h"

#include "LocalMessage.h"
#include "LocalPeerConnection.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QThread>

namespace {

const int MaxConnections = 32;
const int RetryInterval = 25; // milliseconds

/// Gives the function away that some versions of the toolkit keep protected.
struct Pause : QThread
{
    using QThread::msleep;
};

class Deadline
{
public:
    explicit Deadline(int milliseconds)
        : m_milliseconds(milliseconds)
    {
        m_clock.start();
    }

    int remaining() const { return static_cast<int>(qMax<qint64>(0, m_milliseconds - m_clock.elapsed())); }

private:
    QElapsedTimer m_clock;
    int m_milliseconds;
};

bool deliver(const QString& server, const QByteArray& message, const Deadline& deadline)
{
    QLocalSocket socket;
    socket.connectToServer(server);
    if (!socket.waitForConnected(deadline.remaining()))
        return false;
    socket.write(message);
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(deadline.remaining()))
            return false;
    }
    while (socket.bytesAvailable() < LocalMessage::AcknowledgementSize) {
        if (!socket.waitForReadyRead(deadline.remaining()))
            return false;
    }
    return socket.readAll() == LocalMessage::Acknowledgement;
}

} // namespace

LocalPeer::LocalPeer(const QString& id, QObject* parent)
    : QObject(parent)
    , m_id(id)
    , m_address(id)
    , m_lock(m_address.lock())
{
    connect(&m_server, SIGNAL(newConnection()), this, SLOT(acceptConnections()));
}

QString LocalPeer::id() const
{
    return m_id;
}

bool LocalPeer::isClient()
{
    const InstanceLock::Result result = m_address.isValid() ? m_lock.tryAcquire() : InstanceLock::Failed;
    if (result == InstanceLock::Held && !m_server.isListening())
        listen();
    else if (result == InstanceLock::Failed)
        qWarning("Other instances of the application cannot be found.");
    return result == InstanceLock::HeldElsewhere;
}

bool LocalPeer::sendMessage(const QString& message, int timeout)
{
    const Deadline deadline(timeout);
    const QByteArray bytes = LocalMessage::encode(message);
    // The lock is not tried here: a process that is about to end would become the instance for a moment, and
    // one that starts just then would take it for one.
    if (bytes.isNull() || !m_address.isValid() || m_lock.isHeld())
        return false;
    // The instance may not listen yet, or have too many peers at the moment.
    while (!deliver(m_address.server(), bytes, deadline)) {
        if (deadline.remaining() == 0)
            return false;
        Pause::msleep(static_cast<unsigned long>(qMin(RetryInterval, deadline.remaining())));
    }
    return true;
}

void LocalPeer::listen()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
#endif
    // This process has the lock, so a socket that is there belongs to one that was killed.
    QLocalServer::removeServer(m_address.server());
    if (!m_server.listen(m_address.server()))
        qWarning("Other instances cannot reach this one: %s", qPrintable(m_server.errorString()));
}

void LocalPeer::acceptConnections()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        if (findChildren<LocalPeerConnection*>().size() >= MaxConnections) {
            delete socket;
            continue;
        }
        const QObject* connection = new LocalPeerConnection(socket, this);
        connect(connection, SIGNAL(messageReceived(QString)), this, SIGNAL(messageReceived(QString)),
                Qt::QueuedConnection);
    }
}
