#include "LocalPeerConnection.h"

#include "LocalMessage.h"

#include <QLocalSocket>
#include <QTimer>

namespace {

const int TimeLimit = 2000; // milliseconds

} // namespace

LocalPeerConnection::LocalPeerConnection(QLocalSocket* socket, QObject* parent)
    : QObject(parent)
    , m_socket(socket)
{
    m_socket->setParent(this);
    // What does not fit stays with the peer, however much that has to send.
    m_socket->setReadBufferSize(LocalMessage::MaxSize);
    connect(m_socket, SIGNAL(readyRead()), this, SLOT(read()));
    connect(m_socket, SIGNAL(disconnected()), this, SLOT(deleteLater()));
    QTimer::singleShot(TimeLimit, this, SLOT(deleteLater()));
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
    // The peer ends the connection: were it done here, a pipe could lose the acknowledgement.
    m_socket->write(LocalMessage::Acknowledgement, LocalMessage::AcknowledgementSize);
    m_socket->flush();
    Q_EMIT messageReceived(message);
}
