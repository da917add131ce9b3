#ifndef ZEL_ZELSYSTEMCOMPAT_H
#define ZEL_ZELSYSTEMCOMPAT_H

// The differences between Windows and other systems in how product code handles files and processes. On
// Windows the folder decides who owns a new file, and a file that another program has open cannot be
// replaced.

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTextCodec>

#include <chrono>
#include <thread>

#if defined(Q_OS_WIN)
#    if !defined(NOMINMAX)
#        define NOMINMAX
#    endif
#    include <windows.h>
#else
#    include <cerrno>
#    include <fcntl.h>
#    include <sys/file.h>
#    include <unistd.h>
#endif

namespace zel {

/// How long to wait for a file that another program, such as a virus scanner, has open, in milliseconds.
#if defined(Q_OS_WIN)
const int BusyFileTimeout = 1000;
#else
const int BusyFileTimeout = 0;
#endif

/// Repeats an attempt that returns false because another program has a file open, for up to BusyFileTimeout.
template <typename Attempt>
bool succeedsWhenFree(Attempt attempt)
{
    QElapsedTimer clock;
    clock.start();
    while (!attempt()) {
        if (clock.elapsed() >= BusyFileTimeout)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return true;
}

/// Opens a file; waits up to BusyFileTimeout while another program has it open. False when that fails.
inline bool openWhenFree(QFile& file, QIODevice::OpenMode mode)
{
    return succeedsWhenFree([&] { return file.open(mode) || !file.exists(); }) && file.isOpen();
}

/// True for a file of the user who runs the process; always true on Windows.
inline bool isOwn(const QFileInfo& file)
{
#if defined(Q_OS_WIN)
    Q_UNUSED(file)
    return true;
#else
    return file.ownerId() == ::geteuid();
#endif
}

/// True when a new file that replaces this one can have the same owner.
inline bool mayReplace(const QFileInfo& file)
{
#if defined(Q_OS_WIN)
    return isOwn(file);
#else
    return isOwn(file) || ::geteuid() == 0;
#endif
}

/// True for a folder in which files can be created, as far as its permissions tell. On Windows its read-only
/// attribute does not mean that, and access rights show only when a file is created.
inline bool isWritableFolder(const QFileInfo& folder)
{
#if defined(Q_OS_WIN)
    return folder.isDir();
#else
    return folder.isDir() && folder.isWritable();
#endif
}

/// Lets the process that receives the next message put its window in front of others, which Windows allows
/// only to the process that the user has started last.
inline void passForegroundOn()
{
#if defined(Q_OS_WIN)
    AllowSetForegroundWindow(ASFW_ANY);
#endif
}

/// True while a process holds a lock on the file, as QSettings does. It ends with the process.
inline bool isLocked(const QString& path)
{
#if defined(Q_OS_WIN)
    const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()), GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(file);
    return false;
#else
    const int file = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    const bool locked = file >= 0 && ::flock(file, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (file >= 0)
        ::close(file);
    return locked;
#endif
}

/// Sets the owner and the group of a file. False when this process has no right to; on Windows it does
/// nothing and is true.
inline bool giveFileTo(const QString& path, uint owner, uint group)
{
#if defined(Q_OS_WIN)
    Q_UNUSED(path)
    Q_UNUSED(owner)
    Q_UNUSED(group)
    return true;
#else
    return ::lchown(QFile::encodeName(path).constData(), owner, group) == 0;
#endif
}

/// Reads and writes file names and arguments as UTF-8, also in a process without a locale: under the "C"
/// locale Qt replaces each non-ASCII character by a question mark. Windows has Unicode names anyway.
inline void useUtf8FileNames()
{
#if !defined(Q_OS_WIN)
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
}

} // namespace zel

#endif
