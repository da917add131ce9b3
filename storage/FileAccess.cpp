#include "FileAccess.h"

#include "FolderCreation.h"
#include "base/ZelSystemCompat.h"

#include "platform/MTLogger.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTemporaryFile>

#include <chrono>
#include <system_error>

namespace zel {

namespace {

const qint64 LockSize = 8192; // What the lock of QSettings and rounding up to blocks take besides.
const qint64 MaximumFileSize = qint64(64) * 1024 * 1024;
const std::chrono::minutes StaleLockAge(1); // QSettings removes a lock of half a minute.
const int LongestLock = 2000;               // ms; a write takes milliseconds.

/// Why QSettings, which waits for its lock without end, could not take it; empty when it can.
QString lockReason(const QString& lock)
{
    const QFileInfo file(lock);
    if (!file.isSymLink() && !file.exists())
        return QString();
    if (file.isSymLink() || !file.isFile() || !mayReplace(file))
        return Text::tr("\"%1\" is in the way, which no program uses: remove it").arg(lock);
    QFile reader(lock);
    const qint64 process = reader.open(QIODevice::ReadOnly) ? reader.readLine(32).trimmed().toLongLong() : 1;
    const qint64 age = file.lastModified().msecsTo(QDateTime::currentDateTime());
    if (process > 0) // QSettings removes the lock of a process that has ended.
        return age > LongestLock && isRunning(process) ? Text::tr("another program has locked it")
                                                       : QString();
    // The process died while it took the lock. Not removed here: by now it may be another's. QSettings
    // removes an old one if no process holds it.
    std::error_code error;
    std::filesystem::last_write_time(nativePath(lock),
                                     std::filesystem::file_time_type::clock::now() - StaleLockAge, error);
    return QString();
}

QString noRoom()
{
    return QString::fromLocal8Bit(std::make_error_code(std::errc::no_space_on_device).message().c_str());
}

} // namespace

void logWarning(const QString& text)
{
    MTLogger::Log("warning", text.toUtf8().constData());
}

bool fail(const QString& text, QString& error)
{
    error = text;
    MTLogger::Log("error", error.toUtf8().constData());
    return false;
}

std::filesystem::path nativePath(const QString& path)
{
    return std::filesystem::u8path(path.toUtf8().constData());
}

QFileInfo fileBehind(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isSymLink())
        return file;
    return QFileInfo(file.exists() ? file.canonicalFilePath() : file.symLinkTarget());
}

QByteArray contentOfFile(const QString& path)
{
    QFile file(path);
    return openWhenFree(file, QIODevice::ReadOnly | QIODevice::Unbuffered) ? file.readAll() : QByteArray();
}

QString unreadableReason(const QString& path)
{
    const QFileInfo file(path);
    const bool isFile = file.isFile();
    std::error_code error; // As for links in a circle, which do not "exist" but would be replaced.
    if (!isFile && !file.exists())
        return std::filesystem::status(nativePath(path), error).type() == std::filesystem::file_type::none
                   ? QString::fromLocal8Bit(error.message().c_str())
                   : QString();
    if (!isFile)
        return Text::tr("it is not a file");
    if (file.size() > MaximumFileSize)
        return Text::tr("it is too large");
    QFile reader(path);
    // Permissions tell nothing of a file that another program keeps to itself, as on Windows.
    const bool readable =
        BusyFileTimeout == 0 ? file.isReadable() : openWhenFree(reader, QIODevice::ReadOnly);
    return readable || reader.open(QIODevice::ReadOnly) ? QString() : reader.errorString();
}

QString unwritableReason(const QString& path)
{
    const QString unreadable = unreadableReason(path);
    if (!unreadable.isEmpty())
        return unreadable;
    const QFileInfo named(path), file = fileBehind(path);
    const bool isFile = file.isFile();
    if (isFile && !mayReplace(file))
        return Text::tr("it belongs to another user or group, who would lose it");
    // The lock stands beside a link, and the new file beside its target, whose folder is not created.
    const QFileInfo folder(file.path()), linkFolder(named.path());
    const bool writable = named.isSymLink() ? folder.isDir() && folder.isWritable() && linkFolder.isWritable()
                          : isFile          ? folder.isWritable()
                                            : canCreateFolder(file.path());
    return writable && (!isFile || file.isWritable()) ? lockReason(path + ".lock") : probeWriteError(path);
}

QString roomReason(const QString& path, qint64 size)
{
    std::error_code error;
    const auto space = std::filesystem::space(nativePath(QFileInfo(path).path()), error);
    const bool fits = error || space.available >= static_cast<std::uintmax_t>(size + LockSize);
    return fits ? QString() : noRoom();
}

QString probeWriteError(const QString& path)
{
    const QFileInfo file = fileBehind(path);
    QFile writer(file.filePath());
    if (file.exists() && !writer.open(QIODevice::ReadWrite))
        return writer.errorString();
    const qint64 size = file.size() + LockSize;
    QStringList places(path); // The lock stands beside a link, and the new file beside its target.
    if (file.filePath() != path)
        places += file.filePath();
    for (const QString& place : places) {
        QTemporaryFile probe(place + ".XXXXXX");
        if (!probe.open())
            return probe.errorString();
        if (probe.write(QByteArray(static_cast<int>(size), '\0')) != size || !probe.flush())
            return noRoom();
    }
    // As where it is mounted on its own, or where another program has it open.
    return Text::tr("it cannot be replaced by a new one");
}

bool refuseWriting(const QString& path, const QString& reason, QString& error)
{
    return fail(Text::tr("Could not write the Torvane settings file \"%1\": %2").arg(path, reason), error);
}

bool copySettingsFile(const QString& path, const QString& copy, QString& error)
{
    QFile file(path);
    if (file.copy(copy)) {
        const QFileInfo former(path);
        giveFileTo(copy, former.ownerId(),
                   former.groupId()); // Where that is refused, it is a copy all the same.
        return true;
    }
    return fail(Text::tr("Could not keep a copy of the Torvane settings file \"%1\": %2")
                    .arg(path, probeWriteError(path)),
                error);
}

} // namespace zel
