#ifndef ZEL_LOCALPEER_H
#define ZEL_LOCALPEER_H

#include "InstanceAddress.h"
#include "InstanceLock.h"

#include <QLocalServer>
#include <QObject>
#include <QString>

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

    QString id() const;

Q_SIGNALS:
    /// Arrives through the event loop.
    void messageReceived(const QString& message);

private Q_SLOTS:
    void acceptConnections();

private:
    void listen();

    const QString m_id;
    const InstanceAddress m_address;
    InstanceLock m_lock;
    QLocalServer m_server; // After the lock, so that its socket is gone before the lock is free again.
};

#endif
