#include "InstanceLock.h"

#include <QFile>

#if defined(_WIN32)
#    include <windows.h>
#else
#    include <cerrno>
#    include <fcntl.h>
#    include <sys/file.h>
#    include <unistd.h>
#endif

InstanceLock::InstanceLock(const QString& name)
    : m_name(name)
{
}

#if defined(_WIN32)

InstanceLock::~InstanceLock()
{
    if (isHeld())
        CloseHandle(m_mutex);
}

bool InstanceLock::isHeld() const
{
    return m_mutex != nullptr;
}

InstanceLock::Result InstanceLock::tryAcquire()
{
    if (isHeld())
        return Held;
    m_mutex = CreateMutexW(nullptr, FALSE, reinterpret_cast<const wchar_t*>(m_name.utf16()));
    if (!m_mutex)
        return Failed;
    if (GetLastError() != ERROR_ALREADY_EXISTS)
        return Held;
    CloseHandle(m_mutex);
    m_mutex = nullptr;
    return HeldElsewhere;
}

#else

InstanceLock::~InstanceLock()
{
    // The file stays: were it removed, one process could lock the old file and another one a new file.
    if (isHeld())
        ::close(m_file);
}

bool InstanceLock::isHeld() const
{
    return m_file >= 0;
}

InstanceLock::Result InstanceLock::tryAcquire()
{
    if (isHeld())
        return Held;
    const int file =
        ::open(QFile::encodeName(m_name).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (file < 0)
        return Failed;
    if (::flock(file, LOCK_EX | LOCK_NB) == 0) {
        m_file = file;
        return Held;
    }
    const bool heldElsewhere = errno == EWOULDBLOCK;
    ::close(file);
    return heldElsewhere ? HeldElsewhere : Failed;
}

#endif
