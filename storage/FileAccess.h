#ifndef ZEL_FILEACCESS_H
#define ZEL_FILEACCESS_H

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

namespace zel {

/// How long to wait for a lock that another program holds, in milliseconds.
const int LockTimeout = 3000;

/// Translates the error texts of the settings file.
struct SettingsFileText
{
    Q_DECLARE_TR_FUNCTIONS(ZelControlCenter)
};

/// @{
/// Make the error of a file that cannot be read or written, and log it. Always false, for the caller to
/// return.
bool refuseReading(const QString& path, const QString& reason, QString& error);
bool refuseWriting(const QString& path, const QString& reason, QString& error);
/// @}

/// The file that a link leads to, which may not exist; the file itself if it is no link.
QString fileBehind(const QString& path);

/// True for a name that is taken, also when the system does not tell by what.
bool exists(const QString& path);

/// Reads a whole settings file; a missing one is empty. False, with the reason, when it is no regular file,
/// is too large, or cannot be read to its end.
/// @param isLocked  this process has locked it as QSettings does
bool readFile(const QString& path, QByteArray& content, QString& reason, bool isLocked = false);

/// Writes a file and forces it onto the disk. False, with the reason, when not all of it is there.
bool writeFile(const QString& path, const QByteArray& content, QString& reason);

/// Why a settings file cannot be written, as far as that is known without writing; empty when no reason is
/// known.
QString unwritableReason(const QString& path);

/// True when a folder exists and can be written into, or can be created with its missing parents.
bool canCreateFolder(const QString& path);

/// What a lock file that cannot be taken means for the user.
QString lockReason(const QString& lock, bool isHeld);

} // namespace zel

#endif
