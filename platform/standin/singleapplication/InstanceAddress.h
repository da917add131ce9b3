#ifndef ZEL_INSTANCEADDRESS_H
#define ZEL_INSTANCEADDRESS_H

#include <QString>

/// Where the processes of one program of one user find each other: a lock and a local server, both out of
/// reach for other users.
class InstanceAddress
{
public:
    /// @param id  what the processes have in common; any text of any length
    explicit InstanceAddress(const QString& id);

    /// False when the system has no private place for this user.
    bool isValid() const { return !m_lock.isEmpty(); }

    QString lock() const { return m_lock; }
    QString server() const { return m_server; }

private:
    QString m_lock;
    QString m_server;
};

#endif
