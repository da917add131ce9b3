#include "FileAccess.h"

#include "base/FileLock.h"
#include "base/SystemFiles.h"

#include "platform/MTLogger.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace zel {

namespace {

const qint64 MaximumFileSize = qint64{64} * 1024 * 1024;
const qint64 MaximumGrowth = 16384; // Bytes that a write needs besides, for its lock and a last block.

bool fail(const QString& text, const QString& path, const QString& reason, QString& error)
{
    error = text.arg(path, reason);
    MTLogger::Log("error", error.toUtf8().constData());
    return false;
}

bool isFull(const QString& folder, qint64 size)
{
    std::error_code error; // Set when the folder does not exist yet.
    const auto space = std::filesystem::space(std::filesystem::u8path(folder.toUtf8().constData()), error);
    // Some file systems count nothing.
    return !error && space.capacity > 0 && space.available < static_cast<std::uintmax_t>(size);
}

/// Of what a path leads to. The error is set, for example, for a link that leads to itself.
std::filesystem::file_type typeOf(const QString& path, std::error_code& error)
{
    return std::filesystem::status(std::filesystem::u8path(path.toUtf8().constData()), error).type();
}

/// The existing folder in which the missing parents of a path would be created.
QString existingFolder(const QString& path)
{
    QString folder = QDir(path).absolutePath();
    // A link that leads nowhere does not exist, and yet no folder can take its place.
    while (!QFileInfo(folder).exists() && !QFileInfo(folder).isSymLink() && !QDir(folder).isRoot())
        folder = QFileInfo(folder).path();
    return folder;
}

bool readOpenFile(QFile& file, QByteArray& content, QString& reason, bool isLocked)
{
    QtSettingsLock lock(file, QtSettingsLock::Read);
    if (!isLocked && !lock.take(LockTimeout)) { // Before the size is known, which QFile remembers.
        reason = SettingsFileText::tr("another program has locked it");
    } else if (file.size() > MaximumFileSize) {
        reason = SettingsFileText::tr("it is too large");
    } else {
        content = file.readAll();
        if (file.error() == QFile::NoError)
            return true;
        reason = file.errorString();
    }
    return false;
}

} // namespace

bool canCreateFolder(const QString& path)
{
    return isWritableFolder(existingFolder(path));
}

bool refuseReading(const QString& path, const QString& reason, QString& error)
{
    return fail(SettingsFileText::tr("Could not read the Torvane settings file \"%1\": %2"), path, reason,
                error);
}

bool refuseWriting(const QString& path, const QString& reason, QString& error)
{
    return fail(SettingsFileText::tr("Could not write the Torvane settings file \"%1\": %2"), path, reason,
                error);
}

QString fileBehind(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isSymLink())
        return path;
    return file.exists() ? file.canonicalFilePath() : file.symLinkTarget();
}

bool exists(const QString& path)
{
    std::error_code error;
    return typeOf(path, error) != std::filesystem::file_type::not_found;
}

bool readFile(const QString& path, QByteArray& content, QString& reason, bool isLocked)
{
    content.clear();
    std::error_code error;
    const std::filesystem::file_type type = typeOf(path, error);
    if (type == std::filesystem::file_type::not_found)
        return true;
    QFile file(path);
    if (type == std::filesystem::file_type::none)
        reason = QString::fromLocal8Bit(error.message().c_str());
    else if (type != std::filesystem::file_type::regular)
        reason = SettingsFileText::tr("it is not a file");
    else if (!openWhenFree(file, QIODevice::ReadOnly | QIODevice::Unbuffered))
        reason = file.errorString();
    else
        return readOpenFile(file, content, reason, isLocked);
    return false;
}

bool writeFile(const QString& path, const QByteArray& content, QString& reason)
{
    QFile file(path);
    const bool isWritten =
        file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(content) == content.size();
    if (isWritten && syncToDisk(file))
        return true;
    reason = isWritten || file.error() == QFile::NoError ? systemError() : file.errorString();
    return false;
}

QString lockReason(const QString& lock, bool isHeld)
{
    if (isHeld)
        return SettingsFileText::tr("another program has locked it");
    const QString error = systemError(); // Before it is lost.
    const QFileInfo file(lock);
    return file.exists() || file.isSymLink()
               ? SettingsFileText::tr("\"%1\" is in the way, which no program uses: remove it").arg(lock)
               : error;
}

QString unwritableReason(const QString& path)
{
    QByteArray content;
    QString reason;
    if (!readFile(path, content, reason))
        return reason;
    const QString target = fileBehind(path);
    QFile file(target);
    if (file.exists() && !mayReplace(target))
        return SettingsFileText::tr("it belongs to another user, who would lose it");
    if (file.exists() && !openWhenFree(file, QIODevice::ReadWrite))
        return file.errorString();
    // The lock stands beside a link, and the new file beside its target, whose folder is not created.
    for (const QString& folder : {existingFolder(QFileInfo(path).path()), QFileInfo(target).path()}) {
        const QString probe = folder + "/.torvane-probe";
        if (!isWritableFolder(folder) && !createPrivateFolder(probe))
            return systemError();
        QDir().rmdir(probe);
        if (isFull(folder, file.size() + MaximumGrowth))
            return QString::fromLocal8Bit(
                std::make_error_code(std::errc::no_space_on_device).message().c_str());
    }
    const QString lock = path + ".lock";
    const FileLock::State state = FileLock(lock).state();
    return state == FileLock::Blocked ? lockReason(lock, false) : QString();
}

} // namespace zel
