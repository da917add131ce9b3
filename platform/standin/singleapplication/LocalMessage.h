#ifndef ZEL_LOCALMESSAGE_H
#define ZEL_LOCALMESSAGE_H

#include <QByteArray>
#include <QString>

class QLocalSocket;

/// How a message travels: four fixed bytes that tell it from noise, its length in four bytes, highest first,
/// and its text in UTF-8. The receiver answers with an acknowledgement.
namespace LocalMessage {

/// Size of the longest message on its way, in bytes.
const int MaxSize = 1024 * 1024;

const char Acknowledgement[] = "taken";
const int AcknowledgementSize = sizeof(Acknowledgement) - 1;

/// The bytes to be sent; null when the message is too long.
QByteArray encode(const QString& message);

enum Result { Incomplete, Complete, Invalid };

/// Reads the message that a peer sends, as soon as all of it has arrived.
Result read(QLocalSocket& socket, QString& message);

} // namespace LocalMessage

#endif
