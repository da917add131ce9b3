#ifndef ZEL_FILEREPLACEMENT_H
#define ZEL_FILEREPLACEMENT_H

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <chrono>
#include <thread>

#if !defined(Q_OS_WIN)
#    include <cerrno>
#    include <csignal>
#    include <unistd.h>
#endif

namespace zel {

// What replacing a file by a new one means on each operating system. On Windows the new file belongs to whom
// the folder says, and a file that another program has open cannot be replaced.

/// How long a write waits for a file that another program has open, as virus scanners do, in milliseconds.
#if defined(Q_OS_WIN)
const int BusyFileTime = 1000;
#else
const int BusyFileTime = 0;
#endif

/// Repeats an attempt that returns false, because another program has a file open, for BusyFileTime at most.
template <typename Attempt>
bool succeedsWhenFree(Attempt attempt)
{
    QElapsedTimer clock;
    clock.start();
    while (!attempt()) {
        if (clock.elapsed() >= BusyFileTime)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return true;
}

/// Opens a file, and waits for one that another program keeps to itself.
inline bool openWhenFree(QFile& file, QIODevice::OpenMode mode)
{
    return succeedsWhenFree([&] { return file.open(mode) || !file.exists(); }) && file.isOpen();
}

/// True for a file of the user who runs the process.
inline bool isOwn(const QFileInfo& file)
{
#if defined(Q_OS_WIN)
    Q_UNUSED(file)
    return true;
#else
    return file.ownerId() == ::geteuid();
#endif
}

/// True when a new file in the place of this one can belong to the same user.
inline bool mayReplace(const QFileInfo& file)
{
#if defined(Q_OS_WIN)
    return isOwn(file);
#else
    return isOwn(file) || ::geteuid() == 0;
#endif
}

/// True for a process that has not ended. Whether one runs is not asked on Windows, where a lock ends with
/// it.
inline bool isRunning(qint64 process)
{
#if defined(Q_OS_WIN)
    Q_UNUSED(process)
    return false;
#else
    return ::kill(static_cast<pid_t>(process), 0) == 0 || errno == EPERM;
#endif
}

/// Gives a file to a user and a group. False when this process may not.
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

} // namespace zel

#endif
