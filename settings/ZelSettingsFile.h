#ifndef ZEL_ZELSETTINGSFILE_H
#define ZEL_ZELSETTINGSFILE_H

#include "platform/ZelExport.h"

#include <QString>

class QSettings;

namespace zel {

/// What can go wrong with the settings file itself, told to the caller in a translated text that names the
/// file.
class ZEL_EXPORT ZelSettingsFile
{
public:
    /// Reads and writes the settings' text in the encoding of the file, UTF-8.
    static void UseFileEncoding(QSettings& settings);

    /// True when the file does not exist yet or can be read: a regular file of a sensible size. To be asked
    /// before the file is opened, because a pipe, a device or a file of gigabytes would never stop to be
    /// read.
    static bool IsUsable(const QString& path, QString& error);

    /// Writes what has been changed to the file. When it cannot be written, the log and standard output tell
    /// the file and the reason.
    static bool Sync(QSettings& settings, QString& error);
};

} // namespace zel

#endif
