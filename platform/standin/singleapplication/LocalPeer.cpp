#include "LocalPeer.h"

#include <QElapsedTimer>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>
#include <QtEndian>

namespace {

const char Mark[] = "msg1";
const int MarkSize = sizeof(Mark) - 1;
const int HeaderSize = MarkSize + sizeof(quint32);
const int AcknowledgementSize = sizeof(LocalMessage::Acknowledgement) - 1;

const int MaxConnections = 32;
const int ConnectionTimeout = 2000; // milliseconds
const int RetryInterval = 25;       // milliseconds

/// msleep() is protected in Qt 4.
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
    while (socket.bytesAvailable() < AcknowledgementSize) {
        if (!socket.waitForReadyRead(deadline.remaining()))
            return false;
    }
    return socket.readAll() == LocalMessage::Acknowledgement;
}

} // namespace

QByteArray LocalMessage::encode(const QString& message)
{
    const QByteArray text = message.toUtf8();
    if (text.size() > MaxSize - HeaderSize)
        return QByteArray();
    uchar length[sizeof(quint32)];
    qToBigEndian(static_cast<quint32>(text.size()), length);
    return Mark + QByteArray(reinterpret_cast<const char*>(length), sizeof(length)) + text;
}

LocalMessage::Result LocalMessage::read(QLocalSocket& socket, QString& message)
{
    const QByteArray header = socket.peek(HeaderSize);
    if (!header.startsWith(QByteArray(Mark).left(header.size())))
        return Invalid;
    if (header.size() < HeaderSize)
        return Incomplete;
    const auto length =
        qFromBigEndian<quint32>(reinterpret_cast<const uchar*>(header.constData() + MarkSize));
    if (length > static_cast<quint32>(MaxSize - HeaderSize))
        return Invalid;
    if (socket.bytesAvailable() < HeaderSize + static_cast<qint64>(length))
        return Incomplete;
    const QByteArray text = socket.read(HeaderSize + length).mid(HeaderSize);
    message = QString::fromUtf8(text.constData(), text.size());
    return Complete;
}

LocalPeerConnection::LocalPeerConnection(QLocalSocket* socket, QObject* parent)
    : QObject(parent)
    , m_socket(socket)
{
    m_socket->setParent(this);
    // Limits the memory that a peer can fill.
    m_socket->setReadBufferSize(LocalMessage::MaxSize);
    connect(m_socket, SIGNAL(readyRead()), this, SLOT(read()));
    connect(m_socket, SIGNAL(disconnected()), this, SLOT(deleteLater()));
    QTimer::singleShot(ConnectionTimeout, this, SLOT(deleteLater()));
}

void LocalPeerConnection::read()
{
    QString message;
    const LocalMessage::Result result = LocalMessage::read(*m_socket, message);
    if (result == LocalMessage::Incomplete)
        return;
    disconnect(m_socket, SIGNAL(readyRead()), this, SLOT(read()));
    if (result == LocalMessage::Invalid) {
        deleteLater();
        return;
    }
    // The peer disconnects after it has read: to close a pipe here could lose the acknowledgement.
    m_socket->write(LocalMessage::Acknowledgement, AcknowledgementSize);
    m_socket->flush();
    Q_EMIT messageReceived(message);
}

LocalPeer::LocalPeer(const QString& id, QObject* parent)
    : QObject(parent)
    , m_id(id)
    , m_lock(id)
{
    connect(&m_server, SIGNAL(newConnection()), this, SLOT(acceptConnections()));
}

bool LocalPeer::isClient()
{
    const InstanceLock::Result result = m_lock.tryAcquire();
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
    // Does not try the lock: a client that is about to end would become the running instance for a moment.
    if (bytes.isNull() || m_lock.server().isEmpty() || m_lock.isHeld())
        return false;
    // The instance may not listen yet, or may have too many connections.
    while (!deliver(m_lock.server(), bytes, deadline)) {
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
    // This process has the lock, so an existing socket is left from a killed process.
    QLocalServer::removeServer(m_lock.server());
    if (!m_server.listen(m_lock.server()))
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
