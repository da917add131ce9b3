#ifndef ZEL_ZELFILEFUNCTIONS_H
#define ZEL_ZELFILEFUNCTIONS_H

#include "ZelSystemCompat.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>

#include <filesystem>

namespace zel {

/// The path as the standard library wants it, in Unicode on every system.
inline std::filesystem::path nativePath(const QString& path)
{
    return std::filesystem::u8path(path.toUtf8().constData());
}

/// The file that a link leads to, which may not exist; the file itself if it is no link.
inline QFileInfo fileBehind(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isSymLink())
        return file;
    return QFileInfo(file.exists() ? file.canonicalFilePath() : file.symLinkTarget());
}

/// All of a file; empty when it cannot be read.
inline QByteArray contentOfFile(const QString& path)
{
    QFile file(path);
    return openWhenFree(file, QIODevice::ReadOnly | QIODevice::Unbuffered) ? file.readAll() : QByteArray();
}

/// True when a folder exists and can be written into, or can be created with its missing parents.
inline bool canCreateFolder(const QString& path)
{
    QString folder = QDir(path).absolutePath();
    // A link that leads nowhere does not exist, and yet no folder can take its place.
    while (!QFileInfo(folder).exists() && !QFileInfo(folder).isSymLink() && !QDir(folder).isRoot())
        folder = QFileInfo(folder).path();
    return isWritableFolder(QFileInfo(folder));
}

} // namespace zel

#endif
