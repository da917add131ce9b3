#ifndef ZEL_LOCALPEERCONNECTION_H
#define ZEL_LOCALPEERCONNECTION_H

#include <QObject>
#include <QString>

class QLocalSocket;

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

#endif
