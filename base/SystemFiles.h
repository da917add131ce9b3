#ifndef ZEL_SYSTEMFILES_H
#define ZEL_SYSTEMFILES_H

#include <QFile>
#include <QString>

#include <cstdint>

namespace zel {

/// True where a file that QSettings writes may be replaced by a new one. Before Qt 5.10, QSettings locks the
/// file itself outside Windows: one that waits for that lock would go on to write to the file that is no
/// longer there.
extern const bool SettingsFilesAreReplaced;

/// True where QSettings takes names that differ only in case for the same key. It does not find a name with
/// bytes beyond ASCII there.
extern const bool SettingsIgnoreCase;

/// True where QSettings drops a tab that ends a text, once it has written it, and any other blank that ends a
/// text as an escape.
extern const bool SettingsDropBlanks;

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

/// What QSettings remembers of a file, to tell whether it has changed since it was read.
struct FileStamp
{
    qint64 size;       ///< -1 for a file that does not exist.
    std::int64_t time; ///< In milliseconds of the file system's clock.

    bool operator==(const FileStamp& other) const { return size == other.size && time == other.time; }
};
FileStamp stampOf(const QString& path);

/// Sets when a file was written, in the milliseconds of its stamp. False when that is not possible.
bool setTime(const QString& path, std::int64_t time);

/// Makes a file at least a second later than the one that it has replaced. QSettings of Qt 4 compares size
/// and seconds, also with those of a file that was replaced before.
void makeLater(const QString& path, const FileStamp& replaced);

/// Opens a file; on Windows it waits up to a second while another program has it open for itself.
bool openWhenFree(QFile& file, QIODevice::OpenMode mode);

} // namespace zel

#endif
