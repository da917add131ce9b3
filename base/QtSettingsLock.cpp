#include "QtSettingsLock.h"

#include "SystemCalls.h"

#include <QFileInfo>

#include <vector>

#if defined(Q_OS_WIN)
#    include <windows.h>
#else
#    include <cerrno>
#    include <fcntl.h>
#endif

namespace zel {

#if QT_VERSION >= QT_VERSION_CHECK(5, 10, 0)

struct QtSettingsLock::Private
{
};

QtSettingsLock::QtSettingsLock(const QFile&, Access)
{
}

QtSettingsLock::~QtSettingsLock() = default;

bool QtSettingsLock::take(int)
{
    return true;
}

#elif defined(Q_OS_WIN)

struct QtSettingsLock::Private
{
    /// A semaphore, and how many of its units are held.
    struct Units
    {
        HANDLE semaphore;
        LONG wanted;
        LONG held;
    };

    void add(const char* name, const QString& path, LONG available, LONG wanted)
    {
        const QString whole = QString(name) + QFileInfo(path).absoluteFilePath();
        if (const HANDLE semaphore = CreateSemaphoreW(nullptr, available, available, native(whole)))
            all.push_back({semaphore, wanted, 0});
    }

    std::vector<Units> all;
};

QtSettingsLock::QtSettingsLock(const QFile& file, Access access)
    : d(new Private)
{
    const LONG readers = 50;
    if (access == Write)
        d->add("QSettingsWriteSem ", file.fileName(), 1, 1);
    d->add("QSettingsReadSem ", file.fileName(), readers, access == Write ? readers : 1);
}

QtSettingsLock::~QtSettingsLock()
{
    for (const Private::Units& units : d->all) {
        if (units.held > 0)
            ReleaseSemaphore(units.semaphore, units.held, nullptr);
        CloseHandle(units.semaphore);
    }
}

bool QtSettingsLock::take(int timeout)
{
    for (Private::Units& units : d->all) {
        for (; units.held < units.wanted; ++units.held) {
            if (WaitForSingleObject(units.semaphore, static_cast<DWORD>(timeout)) != WAIT_OBJECT_0)
                return false;
        }
    }
    return true;
}

#else

struct QtSettingsLock::Private
{
    const QFile& file;
    short type;
};

QtSettingsLock::QtSettingsLock(const QFile& file, Access access)
    : d(new Private{file, static_cast<short>(access == Write ? F_WRLCK : F_RDLCK)})
{
}

// The system takes the lock back when the file is closed.
QtSettingsLock::~QtSettingsLock() = default;

bool QtSettingsLock::take(int timeout)
{
    return succeedsWithin(timeout, [this] {
        struct flock range = {};
        range.l_type = d->type;
        range.l_whence = SEEK_SET;
        return ::fcntl(d->file.handle(), F_SETLK, &range) == 0 || (errno != EACCES && errno != EAGAIN);
    });
}

#endif

} // namespace zel
