#include "FileAccess.h"

#include "base/ZelFileFunctions.h"

#include "platform/MTLogger.h"

#include <QDateTime>
#include <QTemporaryFile>

#include <chrono>
#include <system_error>

namespace zel {

namespace {

const qint64 MaximumFileSize = qint64{64} * 1024 * 1024;
const qint64 MaximumGrowth = 16384; // Bytes that a write needs besides, for its lock and a last block.
const std::chrono::minutes StaleLockAge(1); // QSettings removes a lock that is older than half a minute.
const int HeldLockAge = 2000; // ms; an older lock of a running process is stuck: a write takes milliseconds.

const std::error_code NoRoom = std::make_error_code(std::errc::no_space_on_device);

QString errorText(const std::error_code& error)
{
    return QString::fromLocal8Bit(error.message().c_str());
}

/// Why QSettings cannot take its lock, for which it would wait without end; empty when it can.
QString lockReason(const QString& lock)
{
    const QFileInfo file(lock);
    if (file.isSymLink() || (file.exists() && (!file.isFile() || !mayReplace(file))))
        return SettingsFileText::tr("\"%1\" is in the way, which no program uses: remove it").arg(lock);
    if (isLocked(lock))
        return file.lastModified().msecsTo(QDateTime::currentDateTime()) > HeldLockAge
                   ? SettingsFileText::tr("another program has locked it")
                   : QString();
    // Its process has died. QSettings removes such a lock when it is old. It is not removed here, because by
    // now it may be another program's.
    std::error_code error;
    std::filesystem::last_write_time(nativePath(lock),
                                     std::filesystem::file_time_type::clock::now() - StaleLockAge, error);
    return QString();
}

} // namespace

bool failWith(const QString& text, const QString& path, const QString& reason, QString& error)
{
    error = text.arg(path, reason);
    MTLogger::Log("error", error.toUtf8().constData());
    return false;
}

QString unreadableReason(const QString& path)
{
    std::error_code error; // Set, for example, for a link that leads to itself.
    const std::filesystem::file_type type = std::filesystem::status(nativePath(path), error).type();
    if (type == std::filesystem::file_type::not_found)
        return QString();
    if (type == std::filesystem::file_type::none)
        return errorText(error);
    if (type != std::filesystem::file_type::regular)
        return SettingsFileText::tr("it is not a file");
    QFile reader(path); // Permissions do not tell whether another program has it open for itself.
    if (!openWhenFree(reader, QIODevice::ReadOnly))
        return reader.errorString();
    return reader.size() > MaximumFileSize ? SettingsFileText::tr("it is too large") : QString();
}

QString unwritableReason(const QString& path)
{
    const QString unreadable = unreadableReason(path);
    if (!unreadable.isEmpty())
        return unreadable;
    const QFileInfo named(path), file = fileBehind(path);
    const bool exists = file.exists();
    if (exists && !mayReplace(file))
        return SettingsFileText::tr("it belongs to another user, who would lose it");
    // The lock stands beside a link, and the new file beside its target, whose folder is not created.
    if (!canCreateFolder(named.path()) || (named.isSymLink() && !isWritableFolder(QFileInfo(file.path()))) ||
        (exists && !file.isWritable()))
        return probeWriteError(path);
    std::error_code error; // Set when the folder does not exist yet.
    const auto space = std::filesystem::space(nativePath(file.path()), error);
    if (!error && space.available < static_cast<std::uintmax_t>(file.size() + MaximumGrowth))
        return errorText(NoRoom);
    return lockReason(path + ".lock");
}

QString probeWriteError(const QString& path)
{
    const QFileInfo file = fileBehind(path);
    QFile writer(file.filePath());
    if (file.exists() && !writer.open(QIODevice::ReadWrite))
        return writer.errorString();
    const qint64 size = file.size() + MaximumGrowth;
    // The lock stands beside a link, and the new file beside its target.
    for (const QString& place : {path, file.filePath()}) {
        QTemporaryFile probe(place + ".XXXXXX");
        if (!probe.open())
            return probe.errorString();
        if (probe.write(QByteArray(static_cast<int>(size), '\0')) != size || !probe.flush())
            return errorText(NoRoom);
    }
    // For example a mount point, or a file that another program has open.
    return SettingsFileText::tr("it cannot be replaced by a new one");
}

bool copySettingsFile(const QString& path, const QString& copy, QString& error)
{
    // Gets its name when it is complete, because it may have to replace the file. An existing copy stays.
    const QString incomplete = copy + ".new";
    QFile::remove(incomplete);
    const bool isCopied = QFile::copy(path, incomplete);
    const QFileInfo former(path);
    giveFileTo(incomplete, former.ownerId(), former.groupId()); // If that is refused, the copy is still good.
    std::error_code ignored; // Some systems give a copy the time of the file.
    std::filesystem::last_write_time(nativePath(incomplete), std::filesystem::file_time_type::clock::now(),
                                     ignored);
    if (isCopied && QFile::rename(incomplete, copy))
        return true;
    QFile::remove(incomplete);
    return failWith(SettingsFileText::tr("Could not keep a copy of the Torvane settings file \"%1\": %2"),
                    path, probeWriteError(path), error);
}

} // namespace zel
