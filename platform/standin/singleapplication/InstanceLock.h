#ifndef ZEL_INSTANCELOCK_H
#define ZEL_INSTANCELOCK_H

#include <QString>

/// The lock that one process of a program and a user holds, and the name of the local server by which that
/// process is reached; both are out of reach for other users. The operating system releases the lock when its
/// process ends, however it ends, so there are no orphaned locks.
class InstanceLock
{
public:
    enum Result { Held, HeldElsewhere, Failed };

    /// @param id  what the processes have in common; any text of any length
    explicit InstanceLock(const QString& id);
    ~InstanceLock();

    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Takes the lock if it is free, without waiting. Fails when the system has no private place for this
    /// user.
    Result tryAcquire();
    /// True when this object holds the lock.
    bool isHeld() const;

    /// Empty when the system has no private place for this user.
    QString server() const { return m_server; }

private:
    QString m_server;
    QString m_name; // Path of a file, or on Windows the name of a mutex.
#if defined(_WIN32)
    void* m_mutex = nullptr;
#else
    int m_file = -1;
#endif
};

#endif
