#ifndef ZEL_QTSETTINGSFILE_H
#define ZEL_QTSETTINGSFILE_H

// How QSettings treats its file, which differs between versions of Qt and systems.

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

} // namespace zel

#endif
