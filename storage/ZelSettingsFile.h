#ifndef ZEL_ZELSETTINGSFILE_H
#define ZEL_ZELSETTINGSFILE_H

#include "base/ZelExport.h"

#include <QString>

class QSettings;

namespace zel {

/// What keeps the user's settings file whole: after any mishap it holds its old content or the new one, with
/// every key that is not ours. What goes wrong is told in a translated text that names the file, to the
/// caller, in the log and on standard output. GUI thread only.
class ZEL_EXPORT ZelSettingsFile
{
public:
    /// Reads and writes the settings' text in the encoding of the file, UTF-8.
    static void UseFileEncoding(QSettings& settings);

    /// True when the file does not exist yet or can be read: a regular file of a sensible size. To be asked
    /// before the file is opened, because a pipe, a device or a file of gigabytes would never stop to be
    /// read.
    static bool IsUsable(const QString& path, QString& error);

    /// Brings the file into the form that the registry asks for: ZelSettingsRegistry::EnsureSettings, with
    /// all that Sync does. False also when a validator or an end check gives up; the error text is then
    /// theirs.
    static bool Repair(QSettings& settings, QString& error);

    /// Writes what has been changed to the file. What other processes have written in the meantime stays, and
    /// so do the file's owner and group. False when the file could not be written; the changes are then still
    /// pending.
    static bool Sync(QSettings& settings, QString& error);

    /// Makes the file ready to be written: keeps a dated copy beside a damaged one, because the toolkit drops
    /// what it cannot read. Repair and Sync do so on their own; before that it is only needed for a value
    /// that must not be set otherwise, because the toolkit writes it in the end even after they have failed.
    /// False when nothing should be written.
    static bool PrepareWriting(const QString& path, QString& error);
};

} // namespace zel

#endif
