#include "SettingsBackup.h"

#include "FileAccess.h"
#include "Log.h"
#include "SettingsReasons.h"
#include "base/SystemFiles.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QLocale>

#include <algorithm>

namespace zel {

namespace {

const int MaximumCopies = 3;
// In UTC, so that the order of the names is the order of the copies also when summer time ends.
const char* const NameFormat = "yyyy-MM-dd'T'hh-mm-ss.zzz'Z.bak'";

QString nameAt(const QString& path, const QDateTime& time)
{
    return path + "." + QLocale::c().toString(time, NameFormat); // Other locales have digits of their own.
}

QString newName(const QString& path)
{
    const QDateTime now = QDateTime::currentDateTime().toUTC();
    QString name;
    for (int offset = 0; name.isEmpty() || QFile::exists(name); ++offset)
        name = nameAt(path, now.addMSecs(offset));
    return name;
}

/// The dated copies of a settings file, the oldest first; those that are dated in the future come before all
/// others.
QStringList backupsOf(const QString& path)
{
    const QFileInfo file(path);
    const QString prefix = file.fileName() + ".";
    QStringList copies;
    for (const QString& name : file.dir().entryList(QDir::Files | QDir::Hidden, QDir::Name)) {
        if (name.startsWith(prefix) &&
            QLocale::c().toDateTime(name.mid(prefix.length()), NameFormat).isValid())
            copies += file.dir().filePath(name);
    }
    // A clock was wrong when they were made. They must not push out the later ones.
    const QString now = nameAt(path, QDateTime::currentDateTime().toUTC());
    std::stable_partition(copies.begin(), copies.end(), [&now](const QString& copy) { return copy > now; });
    return copies;
}

/// Creates an empty file that only its user can read and write, as far as the file system knows such rights.
void createPrivateFile(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace

QString backupWith(const QString& path, const QByteArray& content)
{
    const QStringList copies = backupsOf(path);
    const auto found = std::find_if(copies.begin(), copies.end(), [&content](const QString& copy) {
        QByteArray kept;
        QString ignored;
        return readFile(copy, kept, ignored) && kept == content;
    });
    return found == copies.end() ? QString() : *found;
}

bool keepBackup(const QString& path, const QByteArray& content, const QString& loss,
                const QString& incomplete, QString& reason)
{
    if (content.isEmpty() || !backupWith(path, content).isEmpty())
        return true;
    QStringList copies = backupsOf(path);
    const QString copy = newName(path);
    QFile::remove(incomplete);     // It may be a link, or a pipe.
    createPrivateFile(incomplete); // So that nobody else reads it before it has its rights.
    const bool isComplete = writeFile(incomplete, content, reason);
    if (isComplete)
        copyRights(path, incomplete); // Where that fails, the copy is good, but for no other user.
    if (!isComplete || !replaceFile(incomplete, copy)) {
        if (isComplete)
            reason = systemError();
        QFile::remove(incomplete);
        reason = SettingsFileText::tr("a copy of it cannot be kept: %1").arg(reason);
        return false;
    }
    while (copies.size() >= MaximumCopies)
        QFile::remove(copies.takeFirst());
    logWarning(QString("The settings file \"%1\" will be replaced: %2. A copy of it is kept as \"%3\".")
                   .arg(path, loss, copy));
    return true;
}

} // namespace zel
