#include "FileAccess.h"

#include "SettingsReasons.h"
#include "base/FileLock.h"
#include "base/QtSettingsLock.h"
#include "base/SystemCalls.h"
#include "base/SystemFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <system_error>

namespace zel {

namespace {

const qint64 MaximumFileSize = qint64{64} * 1024 * 1024;
const qint64 Reserve = 16384; // Bytes that a write needs besides the content, as for its lock.
const int MaximumLinks = 40;  // That one name leads through, as for the system.

bool isFull(const QString& folder, qint64 size)
{
    std::error_code error; // Set when the folder does not exist yet.
    const auto space = std::filesystem::space(filePath(folder), error);
    // Some file systems count nothing.
    return !error && space.capacity > 0 && space.available < static_cast<std::uintmax_t>(size);
}

/// Of what a path leads to. The error is set, for example, for a link that leads to itself.
std::filesystem::file_type typeOf(const QString& path, std::error_code& error)
{
    return std::filesystem::status(filePath(path), error).type();
}

/// The existing folder in which the missing parents of a path would be created.
QString existingFolder(const QString& path)
{
    const QFileInfo folder(QDir(path).absolutePath());
    // A link that leads nowhere does not exist, and yet no folder can take its place. A drive has no parent.
    const bool isEnd = folder.exists() || folder.isSymLink() || folder.path() == folder.filePath();
    return isEnd ? folder.filePath() : existingFolder(folder.path());
}

} // namespace

bool canCreateFolder(const QString& path)
{
    return isWritableFolder(existingFolder(path));
}

QString resolvedPath(const QString& path)
{
    QFileInfo file(path);
    if (!file.isSymLink())
        return path;
    if (file.exists())
        return file.canonicalFilePath();
    for (int links = 0; file.isSymLink() && links < MaximumLinks; ++links)
        file.setFile(file.symLinkTarget());
    return file.filePath();
}

QStringList namesOf(const QString& path)
{
    const QString target = resolvedPath(path);
    return target == path ? QStringList(path) : QStringList(target) << path;
}

bool exists(const QString& path)
{
    std::error_code error;
    return typeOf(path, error) != std::filesystem::file_type::not_found;
}

bool readFile(const QString& path, QByteArray& content, QString& reason, const Deadline& deadline,
              QIODevice::OpenMode mode)
{
    content.clear();
    std::error_code error;
    const std::filesystem::file_type type = typeOf(path, error);
    if (type == std::filesystem::file_type::not_found)
        return true;
    QFile file(path);
    QtSettingsLock lock(file, QtSettingsLock::Read);
    if (type == std::filesystem::file_type::none)
        reason = QString::fromLocal8Bit(error.message().c_str());
    else if (type != std::filesystem::file_type::regular)
        reason = SettingsFileText::tr("it is not a file");
    else if (!openWhenFree(file, mode | QIODevice::Unbuffered))
        reason = file.errorString();
    else if (!lock.take(deadline.remaining()))
        reason = lockedReason();
    else
        return readOpenFile(file, content, reason);
    return false;
}

bool readOpenFile(QFile& file, QByteArray& content, QString& reason)
{
    if (file.size() > MaximumFileSize) {
        reason = SettingsFileText::tr("it is too large");
        return false;
    }
    content = file.readAll();
    reason = file.errorString();
    return file.error() == QFile::NoError;
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

QString unwritableReason(const QString& path)
{
    QByteArray content;
    QString reason;
    const QString target = resolvedPath(path);
    if (!readFile(path, content, reason, Deadline(), QIODevice::ReadWrite))
        return reason;
    if (exists(target) && !mayReplace(target))
        return foreignReason();
    for (const QString& name : namesOf(path)) {
        const QString folder = QFileInfo(name).path();
        const FileLock lock(name + ".lock");
        if (!isWritableFolder(name == path ? existingFolder(folder) : folder))
            return systemError();
        if (isFull(folder, content.size() + Reserve))
            return QString::fromLocal8Bit(
                std::make_error_code(std::errc::no_space_on_device).message().c_str());
        if (lock.isBlocked())
            return untakenLockReason(lock, false);
    }
    return QString();
}

} // namespace zel
