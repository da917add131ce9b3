#include "ZelSettingsFile.h"

#include "Announcement.h"
#include "FileTools.h"
#include "IniCodec.h"
#include "ReplacedFile.h"
#include "SettingsBackup.h"
#include "UnfinishedWrite.h"
#include "ZelSettingsRegistry.h"
#include "base/ZelQtCompat.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>

// The toolkit's settings lock the file, merge what others have written into it, and replace it in one step by
// a complete new one. What that leaves open is closed here:
// - A file that cannot be parsed is replaced by what could be: a copy of it is kept.
// - Some versions rewrite the file in place, and a process that dies meanwhile leaves half of it: the old
//   content stands beside it for that long.
// - A process that dies while it takes the lock leaves a lock of nobody, and the others wait half a minute;
//   for a lock that is no file they wait for ever.
// - A file that begins with the UTF-8 mark brings the toolkit's own codec back, which loses characters.
// - The new file belongs to who has written it.
// - A change by others goes unnoticed, and is overwritten, if it falls into the same tick of the clock as the
//   one before and leaves the size as it is.
// - A file that has vanished meanwhile comes back with nothing but the latest changes.
// - The status tells the first mishap only, and that one for ever.

namespace zel {

namespace {

using Clock = std::filesystem::file_time_type::clock;

const qint64 MaximumFileSize = qint64(64) * 1024 * 1024;
const std::chrono::milliseconds ClockTick(10);  // Systems count the time of files in ticks of up to this.
const std::chrono::seconds CoarsestFileTime(2); // Some file systems keep no finer times.
const std::chrono::minutes StaleLockAge(1);     // The toolkit removes a lock of half a minute.
const int LockTaking = 250;                     // ms; it takes microseconds, unless the machine is stuck.

QString unreadableReason(const QFileInfo& file)
{
    if (!file.isFile())
        return QCoreApplication::translate("ZelControlCenter", "it is not a file");
    if (file.size() > MaximumFileSize)
        return QCoreApplication::translate("ZelControlCenter", "it is too large");
    QFile reader(file.filePath());
    return reader.open(QIODevice::ReadOnly) ? QString() : reader.errorString();
}

/// The toolkit's settings only tell that writing failed; trying it tells more.
QString unwritableReason(const QString& path)
{
    QFile writer(path);
    if (writer.exists() && !writer.open(QIODevice::ReadWrite))
        return writer.errorString();
    // Where the path is a link, the folder behind it counts. The lock of the toolkit takes some room too.
    const QFileInfo file(path);
    const QString reason =
        mishapOfWritingBeside(file.exists() ? file.canonicalFilePath() : path, file.size() + 4096);
    if (!reason.isEmpty())
        return reason;
    // As where it is mounted on its own, or where another program has it open.
    return QCoreApplication::translate("ZelControlCenter", "it cannot be replaced by a new one");
}

QString lockOf(const QString& path)
{
    return path + ".lock";
}

bool namesProcess(const QString& lock)
{
    QFile file(lock);
    return file.open(QIODevice::ReadOnly) && file.readLine(32).trimmed().toLongLong() > 0;
}

/// Lets the toolkit, which waits without end, take the lock. False when it never could.
bool makeLockable(const QString& path)
{
    const QString lock = lockOf(path);
    const int pause = 20;
    for (int waited = 0; waited <= LockTaking; waited += pause) {
        const QFileInfo file(lock);
        if (file.isSymLink() || (file.exists() && !file.isFile()))
            return false;
        // The toolkit looks after the locks of processes, the dead ones too, if it may write them.
        if (!file.exists() || (file.isWritable() && namesProcess(lock)))
            return true;
        if (file.lastModified().addMSecs(LockTaking) < QDateTime::currentDateTime())
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(pause));
    }
    // Not removed here: by now it may be a living one. The toolkit removes an old one if no process holds it.
    std::error_code error;
    std::filesystem::last_write_time(nativePath(lock), Clock::now() - StaleLockAge, error);
    return !error || !QFile::exists(lock);
}

Clock::time_point timeOf(const QString& path)
{
    std::error_code error;
    return std::filesystem::last_write_time(nativePath(path), error);
}

/// Gives the file a time that the toolkit cannot have seen, so that it reads the file again before it writes.
/// Takes it back from a file that has not been written.
class NewTime
{
public:
    explicit NewTime(const QString& path)
        : m_path(path)
        , m_former(timeOf(path))
    {
        // Once this tick is over, no one can write the file with the time again at which it was read.
        if (QFile::exists(path) && m_former <= Clock::now())
            std::this_thread::sleep_until(m_former + ClockTick);
        setTime(std::max(m_former, Clock::now()) + CoarsestFileTime);
        m_given = timeOf(path);
    }

    ~NewTime()
    {
        if (!isWritten())
            setTime(m_former);
    }

    NewTime(const NewTime&) = delete;
    NewTime& operator=(const NewTime&) = delete;

    bool isWritten() const { return timeOf(m_path) != m_given; }

private:
    void setTime(Clock::time_point time)
    {
        std::error_code error; // Where there is no file there is nothing to be read again.
        std::filesystem::last_write_time(nativePath(m_path), time, error);
    }

    const QString m_path;
    const Clock::time_point m_former;
    Clock::time_point m_given;
};

/// Writes every value, not only what has been changed.
void setAll(QSettings& settings)
{
    for (const QString& key : settings.allKeys()) {
        if (!key.isEmpty())
            settings.setValue(key, settings.value(key));
    }
}

/// Whether a file can be written whose status tells of a mishap, be it a former one.
bool writesOneValue(QSettings& settings)
{
    QStringList keys = settings.allKeys();
    keys.removeAll(""); // The toolkit reads a key without a name, but sets none.
    if (keys.isEmpty())
        return settings.status() != QSettings::AccessError;
    settings.setValue(keys.last(), settings.value(keys.last()));
    const NewTime time(settings.fileName());
    settings.sync();
    return time.isWritten();
}

bool refuse(const QString& path, const QString& reason, QString& error)
{
    return fail(QCoreApplication::translate("ZelControlCenter",
                                            "Could not write the Torvane settings file \"%1\": %2")
                    .arg(path, reason),
                error);
}

bool write(QSettings& settings, QString& error)
{
    settings.sync();
    if (settings.status() == QSettings::NoError || writesOneValue(settings))
        return true;
    return refuse(settings.fileName(), unwritableReason(settings.fileName()), error);
}

typedef bool (*Change)(QSettings& settings, QString& error);

/// Makes the change, if there is one, and writes it under all protection.
bool changeAndWrite(QSettings& settings, Change change, QString& error)
{
    const QString path = settings.fileName();
    if (!ZelSettingsFile::PrepareWriting(path, error) ||
        (!SettingsReplaceTheirFile && !UnfinishedWrite::begin(path, error)))
        return false;
    ZelSettingsFile::UseFileEncoding(settings); // A mark that has been read may have brought the other back.
    if (QFileInfo(path).size() == 0)
        setAll(settings);
    const ReplacedFile former(path);
    bool written = false;
    {
        const NewTime time(path);
        written = (!change || change(settings, error)) && write(settings, error);
    }
    if (!SettingsReplaceTheirFile)
        UnfinishedWrite::end(path, written || settings.status() == QSettings::NoError);
    former.restore();
    return written;
}

bool writeGuarded(QSettings& settings, Change change, QString& error)
{
    if (changeAndWrite(settings, change, error))
        return true;
    // Else the toolkit would write what is left on its own, unprotected, as soon as it comes to events.
    QCoreApplication::removePostedEvents(&settings, QEvent::UpdateRequest);
    return false;
}

} // namespace

void ZelSettingsFile::UseFileEncoding(QSettings& settings)
{
    settings.setIniCodec(&IniCodec::instance());
}

bool ZelSettingsFile::IsUsable(const QString& path, QString& error)
{
    if (!SettingsReplaceTheirFile)
        UnfinishedWrite::recover(path);
    const QFileInfo file(path);
    QString reason;
    std::error_code mishap; // As for links in a circle, which do not "exist" but would be replaced.
    if (file.exists())
        reason = unreadableReason(file);
    else if (std::filesystem::status(nativePath(path), mishap).type() == std::filesystem::file_type::none)
        reason = QString::fromLocal8Bit(mishap.message().c_str());
    if (reason.isEmpty())
        return true;
    return fail(
        QCoreApplication::translate("ZelControlCenter", "Could not read the Torvane settings file \"%1\": %2")
            .arg(path, reason),
        error);
}

bool ZelSettingsFile::PrepareWriting(const QString& path, QString& error)
{
    QString copy;
    if (!IsUsable(path, error) || !SettingsBackup::keepIfDamaged(path, copy, error))
        return false;
    if (SettingsReplaceTheirFile && !ReplacedFile(path).canKeepOwner())
        return refuse(path,
                      QCoreApplication::translate("ZelControlCenter",
                                                  "it belongs to another user or group, who would lose it"),
                      error);
    if (!makeLockable(path))
        return refuse(path,
                      QCoreApplication::translate("ZelControlCenter",
                                                  "\"%1\" is in the way, which no program uses: remove it")
                          .arg(lockOf(path)),
                      error);
    return dropByteOrderMark(path) || refuse(path, unwritableReason(path), error);
}

bool ZelSettingsFile::Sync(QSettings& settings, QString& error)
{
    return writeGuarded(settings, nullptr, error);
}

bool ZelSettingsFile::Repair(QSettings& settings, QString& error)
{
    return writeGuarded(settings, &ZelSettingsRegistry::EnsureSettings, error);
}

} // namespace zel
