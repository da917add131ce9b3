#ifndef ZEL_LOCALPEER_H
#define ZEL_LOCALPEER_H

#include "InstanceLock.h"

#include <QByteArray>
#include <QLocalServer>
#include <QObject>
#include <QString>

class QLocalSocket;

/// The wire format of a message: four magic bytes, the length of the text as a big-endian 32-bit number, and
/// the text in UTF-8. The receiver answers with an acknowledgement.
namespace LocalMessage {

/// Size of the longest encoded message, in bytes.
const int MaxSize = 1024 * 1024;

const char Acknowledgement[] = "taken";

/// The bytes to send; null when the message is too long.
QByteArray encode(const QString& message);

enum Result { Incomplete, Complete, Invalid };

/// Reads a message from a socket. Leaves the bytes there while the message is incomplete.
Result read(QLocalSocket& socket, QString& message);

} // namespace LocalMessage

/// The receiving end of a connection. Takes one message and acknowledges it. Deletes itself when the peer
/// disconnects, when the bytes are no message, and after a timeout.
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

/// A process of a program: the running instance, which receives messages, or a client, which sends them.
/// Where the system has no private folder for the user, every process is an instance.
class LocalPeer : public QObject
{
    Q_OBJECT

public:
    explicit LocalPeer(const QString& id, QObject* parent = nullptr);

    /// True when another process is the running instance. Otherwise this process becomes it.
    bool isClient();

    /// Sends a message to the running instance. False when this process is the instance, when the message is
    /// too long, or when the instance does not take it within the timeout, in milliseconds.
    bool sendMessage(const QString& message, int timeout);

    QString id() const { return m_id; }

Q_SIGNALS:
    /// Emitted from the event loop.
    void messageReceived(const QString& message);

private Q_SLOTS:
    void acceptConnections();

private:
    void listen();

    const QString m_id;
    InstanceLock m_lock;
    QLocalServer m_server; // After the lock, so that its socket is removed before the lock is released.
};

#endif
