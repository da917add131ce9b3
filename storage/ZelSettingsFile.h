#ifndef ZEL_ZELSETTINGSFILE_H
#define ZEL_ZELSETTINGSFILE_H

#include "base/ZelExport.h"

#include <QString>

#include <functional>
#include <memory>

class QSettings;

namespace zel {

/// What keeps the user's settings file whole: at any moment, also when the process is killed or the disk is
/// full, it holds its old content or the new one, with every key that is not ours. Error texts are
/// translated, name the file and the reason, and are logged. GUI thread only.
class ZEL_EXPORT ZelSettingsFile
{
public:
    /// Changes values of the settings. False, with the error text set, gives the write up.
    using Change = std::function<bool(QSettings& settings, QString& error)>;

    /// Opens a file, which should be usable, in its encoding.
    static std::unique_ptr<QSettings> Open(const QString& path);

    /// Makes settings read and write text in the encoding of the file, UTF-8.
    static void UseFileEncoding(QSettings& settings);

    /// True when the file does not exist yet or can be read: a regular file of a sensible size. To be asked
    /// before the file is opened, because reading a pipe, a device or a file of gigabytes would never end.
    static bool IsUsable(const QString& path, QString& error);

    /// False when it is known without writing that the file cannot be written, as on a full disk.
    static bool IsWritable(const QString& path, QString& error);

    /// The only way to the disk: lets the change set and remove values, and writes them. What others have
    /// written in the meantime stays. What a damaged, empty or cut file has lost comes back from memory; one
    /// that lacks a registered key counts as cut. False when the change gave up or the file could not be
    /// written: the settings then hold what they held before the change. The change is not called when it is
    /// known that the file cannot be written.
    static bool Write(QSettings& settings, const Change& change, QString& error);

    /// Brings the file into the form that the registry asks for, as ZelSettingsRegistry::EnsureSettings does,
    /// but safely. A file that cannot be written is accepted if it needs no repair. False also when a
    /// validator or an end check gives up; the error text is then theirs.
    static bool Repair(QSettings& settings, QString& error);
};

} // namespace zel

#endif
