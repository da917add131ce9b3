#ifndef ZEL_SMALLFILE_H
#define ZEL_SMALLFILE_H

// Files that are a convenience: nothing waits for them, and nothing is said when they cannot be used.

#include "SystemFiles.h"

#include <QByteArray>
#include <QFileInfo>
#include <QTemporaryFile>

#if !defined(Q_OS_WIN)
#    include <fcntl.h>
#    include <sys/stat.h>
#    include <unistd.h>
#endif

namespace zel {

/// At most this many bytes of a file. Empty when it cannot be read or is none: links, pipes and devices are
/// not opened.
inline QByteArray contentOfSmallFile(const QString& path, qint64 limit)
{
    QFile file(path);
#if defined(Q_OS_WIN)
    const bool opened = !QFileInfo(path).isSymLink() && file.open(QIODevice::ReadOnly);
#else
    struct stat status = {};
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (descriptor < 0)
        return QByteArray();
    const bool opened = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
                        file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle);
    if (!opened)
        ::close(descriptor);
#endif
    return opened ? file.read(limit) : QByteArray();
}

/// Replaces a file in one step; a link itself, not what it leads to. False when that fails.
inline bool replaceSmallFile(const QString& path, const QByteArray& content)
{
    QString written;
    bool isWritten;
    {
        QTemporaryFile file(path + ".XXXXXX");
        file.setAutoRemove(false);
        isWritten = file.open() && file.write(content) == content.size() && file.flush();
        written = file.fileName(); // Before it is closed, because it may have no name until then.
    } // It stays open as long as the object lives, and Windows replaces no open file.
    if (isWritten && replaceFile(written, path))
        return true;
    QFile::remove(written);
    return false;
}

} // namespace zel

#endif
