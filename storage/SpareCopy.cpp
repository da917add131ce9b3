#include "SpareCopy.h"

#include "FileAccess.h"
#include "SettingsBackup.h"
#include "SettingsReasons.h"
#include "base/QtSettingsFile.h"
#include "base/QtSettingsLock.h"
#include "base/SystemFiles.h"

#include <QFile>
#include <QFileInfo>

namespace zel {

SpareCopy::SpareCopy(const QString& target, const Deadline& deadline)
    : m_target(target)
    , m_path(target + ".unfinished")
    , m_deadline(deadline)
{
}

bool SpareCopy::exists() const
{
    const QFileInfo file(m_path);
    return file.isFile() && !file.isSymLink();
}

bool SpareCopy::readFinished(QByteArray& content, QString& reason) const
{
    QByteArray wanted;
    if (!readFile(m_target, content, reason, m_deadline) ||
        (exists() && !readFile(m_path, wanted, reason, m_deadline)))
        return false;
    if (wanted.startsWith(content))
        content = wanted;
    return true;
}

bool SpareCopy::readBoth(QByteArray& wanted, QByteArray& present, QString& reason) const
{
    return readFile(m_path, wanted, reason, m_deadline) && readFile(m_target, present, reason, m_deadline);
}

bool SpareCopy::adopt(const QString& file, QString& reason) const
{
    // A file that still has this time has not been written since.
    if (setTime(file, stampOf(m_target).time) && replaceFile(file, m_path))
        return true;
    reason = systemError();
    return false;
}

Outcome SpareCopy::overwrite(const QByteArray& expected, const QByteArray& content, QString& reason) const
{
    QFile file(m_target);
    QtSettingsLock lock(file, QtSettingsLock::Write);
    QByteArray present;
    if (!openWhenFree(file, QIODevice::ReadWrite | QIODevice::Unbuffered))
        reason = file.errorString();
    else if (!lock.take(m_deadline.remaining()))
        reason = lockedReason();
    else if (readOpenFile(file, present, reason)) {
        if (present != expected) {
            reason = lockedReason();
            return Outcome::Outdated;
        }
        const FileStamp former = stampOf(m_target);
        const bool isWritten =
            file.resize(0) && file.seek(0) && file.write(content) == content.size() && syncToDisk(file);
        // Where there is no room for it, the spare copy still has its own.
        const bool isInPlace = isWritten || replaceFile(m_path, m_target);
        makeLater(m_target, former);
        if (isInPlace)
            return Outcome::InPlace;
        reason = systemError();
    }
    return Outcome::Failed;
}

bool SpareCopy::finish(QString& reason) const
{
    QByteArray wanted, present;
    if (!readBoth(wanted, present, reason))
        return false;
    const bool isForeign = !wanted.startsWith(present) && stampOf(m_target).time != stampOf(m_path).time;
    if (isForeign &&
        !keepBackup(m_target, wanted, "its writing was cut short, and another program has written it",
                    m_path + ".new", reason))
        return false;
    return restoreIfCut(reason);
}

bool SpareCopy::restoreIfCut(QString& reason) const
{
    QByteArray wanted, present;
    if (!readBoth(wanted, present, reason))
        return false;
    if (present != wanted && wanted.startsWith(present))
        return putBack(wanted, present, reason);
    remove();
    return true;
}

bool SpareCopy::restore(QString& reason) const
{
    QByteArray wanted, present;
    return readBoth(wanted, present, reason) && putBack(wanted, present, reason);
}

bool SpareCopy::putBack(const QByteArray& wanted, const QByteArray& present, QString& reason) const
{
    if (!(SettingsFilesAreReplaced && copyRights(m_target, m_path) && replaceFile(m_path, m_target)) &&
        overwrite(present, wanted, reason) != Outcome::InPlace)
        return false;
    remove();
    return true;
}

void SpareCopy::giveRights() const
{
    copyRights(m_path, m_target);
}

void SpareCopy::remove() const
{
    QFile::remove(m_path);
}

} // namespace zel
