#ifndef ZEL_INSTANCELOCK_H
#define ZEL_INSTANCELOCK_H

#include <QString>

/// A lock that one process at a time can hold. The operating system takes it back when the process ends,
/// however it ends, so a killed process leaves nothing behind that others would have to judge as stale.
class InstanceLock
{
public:
    enum Result { Held, HeldElsewhere, Failed };

    /// @param name  path of the lock file, or the name of a mutex on Windows
    explicit InstanceLock(const QString& name);
    ~InstanceLock();

    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Takes the lock if it is free, without waiting.
    Result tryAcquire();
    /// True when this object holds the lock.
    bool isHeld() const;

private:
    const QString m_name;
#if defined(_WIN32)
    void* m_mutex = nullptr;
#else
    int m_file = -1;
#endif
};

#endif
