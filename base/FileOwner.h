#ifndef ZEL_FILEOWNER_H
#define ZEL_FILEOWNER_H

#include <QFile>
#include <QString>

#if !defined(Q_OS_WIN)
#    include <unistd.h>
#endif

namespace zel {

/// Gives a file to a user and a group. False when this process may not. On Windows a file that replaces
/// another belongs to whom the folder says.
#if defined(Q_OS_WIN)
inline bool giveFileTo(const QString&, uint, uint)
{
    return true;
}
#else
inline bool giveFileTo(const QString& path, uint owner, uint group)
{
    return ::lchown(QFile::encodeName(path).constData(), owner, group) == 0;
}
#endif

} // namespace zel

#endif
