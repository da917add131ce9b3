#include "LocalMessage.h"

#include <QLocalSocket>
#include <QtEndian>

namespace {

const char Mark[] = "msg1";
const int MarkSize = 4;
const int HeaderSize = MarkSize + sizeof(quint32);

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
