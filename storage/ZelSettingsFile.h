#ifndef ZEL_ZELSETTINGSFILE_H
#define ZEL_ZELSETTINGSFILE_H

#include "base/ZelExport.h"

#include <QString>

#include <functional>
#include <memory>

class QSettings;

namespace zel {

/// What keeps the user's settings file whole: at any moment, also when the process is killed, the disk is
/// full or a read fails, it holds its old content or the new one, with every key that is not ours. Each
/// change is made to a copy beside the file, which is read back and then takes its place, with the rights of
/// the file. A write excludes other programs that use this class or QSettings, and waits for them for up to
/// three seconds. With Qt before 5.10 on Unix, where QSettings locks the file itself, and where a new file
/// cannot get the rights of the old one, the file is rewritten in place. So it is when QSettings writes
/// values that a host has set. A complete copy stands beside the file meanwhile; after a kill, the next
/// start, read or write completes the file from it.
///
/// Error texts are translated, name the file and the reason, and are logged. GUI thread only.
class ZEL_EXPORT ZelSettingsFile
{
public:
    /// Changes values of the settings. False, with the error text set, gives the write up.
    using Change = std::function<bool(QSettings& settings, QString& error)>;

    /// Opens a file, which should be usable, in its encoding. While there is something that Write() could not
    /// write, the event loop writes nothing: the next Write() carries it. It is written in the same way when
    /// the settings are deleted; if that fails again, by QSettings.
    static std::unique_ptr<QSettings> Open(const QString& path);

    /// Makes settings read and write text in the encoding of the file, UTF-8.
    static void UseFileEncoding(QSettings& settings);

    /// True when the file does not exist yet or can be read: a regular file of a sensible size. To be asked
    /// before the file is opened: reading a pipe would never end, and a serialised object ("@Variant(...)")
    /// may end the process. Such objects are dropped from the file, after a backup. A write that was killed
    /// is brought to its end.
    static bool IsUsable(const QString& path, QString& error);

    /// False when it is known without writing that the file cannot be written, as on a full disk.
    static bool IsWritable(const QString& path, QString& error);

    /// How the library writes the file: lets the change set and remove values of the copy that will take the
    /// place of the file. What was set in the given settings before is carried into the copy first, and what
    /// the change sets in them afterwards; then they read the file again. What others have written in the
    /// meantime stays: the change is called again if another program writes the file while it runs. What a
    /// damaged, empty or cut file has lost comes back from memory; one that lacks a registered key counts as
    /// cut. False when the change gave up, the file could not be read or written, a change calls it, for
    /// whatever file, or the settings are within a group; no value of the file is changed then, and the
    /// settings hold what they held before, or what the file holds.
    static bool Write(QSettings& settings, const Change& change, QString& error);

    /// What a page reads and changes: while Write() runs, the copy of the file of these settings; else
    /// themselves.
    static QSettings& Current(QSettings& settings);

    /// Reads the file again if others have changed it. What has been set in the settings is written first, as
    /// Write() does; so are all values of settings whose file is empty or gone. Does nothing within a change.
    /// False, and nothing is read, when the file is not usable, or that fails.
    static bool ReadAgain(QSettings& settings, QString& error);

    /// Brings the file into the form that the registry asks for, as ZelSettingsRegistry::EnsureSettings does,
    /// but safely. A file that cannot be written is accepted if it needs no repair. False also when a
    /// validator or an end check gives up; the error text is then theirs.
    static bool Repair(QSettings& settings, QString& error);
};

} // namespace zel

#endif
