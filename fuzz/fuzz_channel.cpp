// Fuzzes the receiving end of the single-instance channel with any bytes, in pieces of any size.

#include "Check.h"

#include "platform/standin/singleapplication/LocalPeer.h"

#include <QCoreApplication>
#include <QLocalSocket>
#include <QPointer>
#include <QtEndian>

#include <sys/socket.h>
#include <unistd.h>

namespace {

const int HeaderSize = 8;

/// The result that the receiver must have for the bytes so far.
LocalMessage::Result expected(const QByteArray& arrived, QString& message)
{
    const QByteArray mark = "msg1";
    if (arrived.left(mark.size()) != mark.left(arrived.size()))
        return LocalMessage::Invalid;
    if (arrived.size() < HeaderSize)
        return LocalMessage::Incomplete;
    const qint64 length = qFromBigEndian<quint32>(arrived.constData() + mark.size());
    if (length > LocalMessage::MaxSize - HeaderSize)
        return LocalMessage::Invalid;
    if (arrived.size() < HeaderSize + length)
        return LocalMessage::Incomplete;
    message = QString::fromUtf8(arrived.constData() + HeaderSize, static_cast<int>(length));
    return LocalMessage::Complete;
}

class Channel : public QObject
{
    Q_OBJECT

public:
    Channel()
    {
        int ends[2];
        check(socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, ends) == 0, "there are sockets");
        m_peer = ends[0];
        auto* socket = new QLocalSocket;
        check(socket->setSocketDescriptor(ends[1]), "Qt takes the socket");
        m_connection = new LocalPeerConnection(socket, this);
        connect(m_connection, SIGNAL(messageReceived(QString)), this, SLOT(note(QString)));
    }

    ~Channel() override { close(m_peer); }

    void send(const QByteArray& bytes)
    {
        check(write(m_peer, bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size(),
              "the bytes fit in");
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    bool isOpen() const { return m_connection; }

    QByteArray answer() const
    {
        QByteArray bytes(16, 0);
        const ssize_t length = read(m_peer, bytes.data(), static_cast<size_t>(bytes.size()));
        return bytes.left(static_cast<int>(qMax<ssize_t>(0, length)));
    }

    QStringList messages;

private Q_SLOTS:
    void note(const QString& message) { messages << message; }

private:
    int m_peer;
    QPointer<LocalPeerConnection> m_connection;
};

void checkReading(const QByteArray& bytes, int pieceSize)
{
    Channel channel;
    QString message;
    LocalMessage::Result result = LocalMessage::Incomplete;
    for (int sent = 0; sent < bytes.size() && result == LocalMessage::Incomplete; sent += pieceSize) {
        channel.send(bytes.mid(sent, pieceSize));
        result = expected(bytes.left(sent + pieceSize), message);
        check(channel.isOpen() == (result != LocalMessage::Invalid),
              "noise, and nothing else, ends the connection");
        const bool complete = result == LocalMessage::Complete;
        check(channel.messages == (complete ? QStringList(message) : QStringList()),
              "a message arrives when it is whole", message);
        check(channel.answer() == (complete ? LocalMessage::Acknowledgement : ""),
              "a message is acknowledged");
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    new QCoreApplication(*argc, *argv); // For the whole run.
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size < 2)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, static_cast<int>(size) - 1);
    checkReading(bytes, data[0] + 1);

    const QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    const QByteArray encoded = LocalMessage::encode(text);
    QString message;
    check(expected(encoded, message) == LocalMessage::Complete && message == text, "what is sent can be read",
          text);
    return 0;
}

#include "fuzz_channel.moc"
