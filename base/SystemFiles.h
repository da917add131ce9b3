#ifndef ZEL_SYSTEMFILES_H
#define ZEL_SYSTEMFILES_H

#include <QFile>
#include <QString>

namespace zel {

/// The system's text for the error of the last call.
QString systemError();

/// True for a file of the user who runs the process; always true on Windows.
bool isOwnFile(const QString& path);

/// True when a new file that replaces this one can have the same owner.
bool mayReplace(const QString& path);

/// True for a folder in which files can be created, as far as its permissions tell; else systemError() tells
/// why. On Windows its read-only attribute does not mean that, and access rights show only when a file is
/// created.
bool isWritableFolder(const QString& path);

/// True for the number of a process that runs, or may do so.
bool isProcessRunning(qint64 process);

/// Creates a folder that only its user can enter. On failure systemError() tells why.
bool createPrivateFolder(const QString& path);

/// Forces what was written to a file onto the disk. On failure systemError() tells why.
bool syncToDisk(const QFile& file);

/// Gives a file the owner, group, permissions, access list and extended attributes of another; on Windows its
/// access list and attributes. False when that is not possible in full.
bool copyRights(const QString& from, const QString& to);

/// Puts a file in the place of another in one step; on Windows it waits a second while a program has that one
/// open. On failure systemError() tells why.
bool replaceFile(const QString& file, const QString& replaced);

/// Opens a file; on Windows it waits up to a second while another program has it open for itself.
bool openWhenFree(QFile& file, QIODevice::OpenMode mode);

} // namespace zel

#endif
