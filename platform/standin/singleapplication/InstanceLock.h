#ifndef ZEL_INSTANCELOCK_H
#define ZEL_INSTANCELOCK_H

#include <QString>

/// A lock that one process per program and user can hold, and the name of the local server of that process.
/// Other users cannot access either. The operating system releases the lock when the process ends or crashes,
/// so there are no orphaned locks.
class InstanceLock
{
public:
    enum Result { Held, HeldElsewhere, Failed };

    /// @param id  identifies the program; any text
    explicit InstanceLock(const QString& id);
    ~InstanceLock();

    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Takes the lock if it is free, without waiting. Fails where the system has no private folder for the
    /// user.
    Result tryAcquire();
    /// True when this object holds the lock.
    bool isHeld() const;

    /// The name of the local server; empty where the system has no private folder for the user.
    QString server() const { return m_server; }

private:
    QString m_server;
    QString m_name; // The path of the lock file; on Windows the name of a mutex.
#if defined(_WIN32)
    void* m_mutex = nullptr;
#else
    int m_file = -1;
#endif
};

#endif
