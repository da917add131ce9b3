#ifndef ZEL_LOCALPEER_H
#define ZEL_LOCALPEER_H

#include "InstanceLock.h"

#include <QByteArray>
#include <QLocalServer>
#include <QObject>
#include <QString>

class QLocalSocket;

/// How a message travels: four fixed bytes that tell it from noise, its length in four bytes, highest first,
/// and its text in UTF-8. The receiver answers with an acknowledgement.
namespace LocalMessage {

/// Size of the longest message on its way, in bytes.
const int MaxSize = 1024 * 1024;

const char Acknowledgement[] = "taken";

/// The bytes to be sent; null when the message is too long.
QByteArray encode(const QString& message);

enum Result { Incomplete, Complete, Invalid };

/// Reads the message that a peer sends, as soon as all of it has arrived.
Result read(QLocalSocket& socket, QString& message);

} // namespace LocalMessage

/// The instance's end of a connection. Takes one message, acknowledges it and deletes itself once the peer
/// has gone, sends something else, or has taken too long.
class LocalPeerConnection : public QObject
{
    Q_OBJECT

public:
    /// Becomes the owner of the socket.
    LocalPeerConnection(QLocalSocket* socket, QObject* parent);

Q_SIGNALS:
    void messageReceived(const QString& message);

private Q_SLOTS:
    void read();

private:
    QLocalSocket* m_socket;
};

/// One process among those with the same id: the instance, which receives messages, or a client, which sends
/// them. Where the system offers no private place to meet, each process is an instance of its own.
class LocalPeer : public QObject
{
    Q_OBJECT

public:
    explicit LocalPeer(const QString& id, QObject* parent = nullptr);

    /// True when another process is the instance; otherwise this one becomes it, if it is not already.
    bool isClient();

    /// Sends a message to the instance, if that is another process. False when the message is too long or was
    /// not taken within the time-out, in milliseconds.
    bool sendMessage(const QString& message, int timeout);

    QString id() const { return m_id; }

Q_SIGNALS:
    /// Arrives through the event loop.
    void messageReceived(const QString& message);

private Q_SLOTS:
    void acceptConnections();

private:
    void listen();

    const QString m_id;
    InstanceLock m_lock;
    QLocalServer m_server; // After the lock, so that its socket is gone before the lock is free again.
};

#endif
