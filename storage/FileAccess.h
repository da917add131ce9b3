#ifndef ZEL_FILEACCESS_H
#define ZEL_FILEACCESS_H

#include "Deadline.h"

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QStringList>

class QFile;

namespace zel {

/// The file that a link leads to, also through other links, which may not exist; the file itself if it is no
/// link.
QString resolvedPath(const QString& path);

/// The names of a file under which programs lock it: behind all links, and as it is given.
QStringList namesOf(const QString& path);

/// True for a name that is taken, also when the system does not tell by what.
bool exists(const QString& path);

/// Reads a whole settings file; a missing one is empty. False, with the reason, when it is no regular file,
/// is too large, or cannot be read to its end.
/// @param mode  as which it is opened: to write it as well, it must not be read-only
bool readFile(const QString& path, QByteArray& content, QString& reason,
              const Deadline& deadline = Deadline(), QIODevice::OpenMode mode = QIODevice::ReadOnly);

/// Reads an open settings file from its beginning. False, with the reason, as for readFile().
bool readOpenFile(QFile& file, QByteArray& content, QString& reason);

/// Writes a file and forces it onto the disk. False, with the reason, when not all of it is there.
bool writeFile(const QString& path, const QByteArray& content, QString& reason);

/// Why a settings file cannot be written, as far as that is known without writing; empty when no reason is
/// known.
QString unwritableReason(const QString& path);

/// True when a folder exists and can be written into, or can be created with its missing parents.
bool canCreateFolder(const QString& path);

} // namespace zel

#endif
