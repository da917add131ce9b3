#include "ZelSettingsFile.h"

#include "Announcement.h"
#include "FileCopy.h"
#include "IniCodec.h"
#include "SettingsBackup.h"
#include "UnfinishedWrite.h"

#include "platform/ZelQtCompat.h"

#include <QCoreApplication>
#include <QDateTime>
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
// - A process that dies while it takes the lock leaves a lock of nobody, and the others wait half a minute.
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
    return QCoreApplication::translate("ZelControlCenter", "the reason is not known");
}

/// The file that is prepared for writing.
QString& preparedFile()
{
    static QString path;
    return path;
}

void waitForLockOfNobody(const QString& path)
{
    const QString lock = path + ".lock";
    const int pause = 20;
    for (int waited = 0; waited <= LockTaking; waited += pause) {
        const QFileInfo file(lock);
        if (!file.exists() || file.size() > 0)
            return;
        if (file.lastModified().addMSecs(LockTaking) < QDateTime::currentDateTime())
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(pause));
    }
    QFile::remove(lock);
}

/// Gives the file a time that the toolkit cannot have seen, so that it reads the file again before it writes.
void makeToolkitReadAgain(const QString& path)
{
    const std::filesystem::path file = std::filesystem::u8path(path.toUtf8().constData());
    std::error_code error;
    const auto written = std::filesystem::last_write_time(file, error);
    if (error)
        return;
    // Once this tick is over, no one can write the file with the time again at which it was read.
    if (written <= Clock::now())
        std::this_thread::sleep_until(written + ClockTick);
    std::filesystem::last_write_time(file, std::max(written, Clock::now()) + CoarsestFileTime, error);
}

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
    const QStringList keys = settings.allKeys();
    if (keys.isEmpty())
        return settings.status() != QSettings::AccessError;
    settings.setValue(keys.last(), settings.value(keys.last()));
    makeToolkitReadAgain(settings.fileName());
    const QDateTime before = QFileInfo(settings.fileName()).lastModified();
    settings.sync();
    return QFileInfo(settings.fileName()).lastModified() != before;
}

bool write(QSettings& settings, QString& error)
{
    settings.sync();
    if (settings.status() == QSettings::NoError || writesOneValue(settings))
        return true;
    error = QCoreApplication::translate("ZelControlCenter",
                                        "Could not write the Torvane settings file \"%1\": %2")
                .arg(settings.fileName(), unwritableReason(settings.fileName()));
    announce("error", error);
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
    const QString reason = file.exists() ? unreadableReason(file) : QString();
    if (reason.isEmpty())
        return true;
    error =
        QCoreApplication::translate("ZelControlCenter", "Could not read the Torvane settings file \"%1\": %2")
            .arg(path, reason);
    announce("error", error);
    return false;
}

bool ZelSettingsFile::PrepareWriting(const QString& path, QString& error)
{
    QString copy;
    if (!IsUsable(path, error) || !SettingsBackup::keepIfDamaged(path, copy, error))
        return false;
    if (!SettingsReplaceTheirFile && !UnfinishedWrite::begin(path, error))
        return false;
    waitForLockOfNobody(path);
    makeToolkitReadAgain(path);
    preparedFile() = QFileInfo(path).absoluteFilePath();
    return true;
}

bool ZelSettingsFile::Sync(QSettings& settings, QString& error)
{
    const QString path = settings.fileName();
    if (preparedFile() != path) {
        if (!PrepareWriting(path, error))
            return false;
        if (QFileInfo(path).size() == 0)
            setAll(settings);
    }
    preparedFile().clear();
    const bool written = write(settings, error);
    if (!SettingsReplaceTheirFile)
        UnfinishedWrite::end(path, written);
    return written;
}

} // namespace zel
