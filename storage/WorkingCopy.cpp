#include "WorkingCopy.h"

#include "FileAccess.h"
#include "IniCodec.h"
#include "SettingsBackup.h"
#include "SettingsDamage.h"
#include "ZelSettingsFile.h"
#include "base/SystemFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace zel {

namespace {

const int ProbeSize = 16384; // Bytes; more than what a file system gives away unasked.

// The last setting of a new copy. If QSettings finds it, it has read the copy to its end.
const char* const EndKey = "end of the working copy/isRead";
const char* const EndText = "\n[end%20of%20the%20working%20copy]\nisRead=true\n";

const char* const FolderMark = ".new-"; // Before the number of the process.

QString spareOf(const QString& target)
{
    return target + ".unfinished";
}

/// As QSettings writes it.
QStringList textOf(const QVariant& value)
{
    return value.type() == QVariant::StringList || value.type() == QVariant::List
               ? value.toStringList()
               : QStringList(value.toString());
}

/// The values as texts, by the names that QSettings writes: the group "[%general]" becomes "[%General]".
QMap<QString, QString> written(const QVariantMap& values)
{
    const QString general = "General/";
    QMap<QString, QString> texts;
    for (auto value = values.constBegin(); value != values.constEnd(); ++value) {
        const QString& key = value.key();
        const bool isGeneral = key.startsWith(general, Qt::CaseInsensitive);
        texts.insert(isGeneral ? general + key.mid(general.size()) : key, textOf(*value).join("\n"));
    }
    return texts;
}

/// Removes the folder of a copy, and nothing that is not ours.
void removeFolder(const QString& path)
{
    if (QDir().rmdir(path) || QFileInfo(path).isSymLink())
        return;
    QDir folder(path);
    for (const QString& name : folder.entryList(QStringList("[0-9]*.ini*"), QDir::Files | QDir::System))
        folder.remove(name);
    QDir().rmdir(path);
}

/// Removes the folders that killed writers have left.
void removeOrphans(const QString& target)
{
    const QFileInfo file(target);
    const QString stem = file.fileName() + FolderMark;
    for (const QString& name : file.dir().entryList(QStringList(stem + "*"), QDir::Dirs | QDir::Hidden))
        if (!isProcessRunning(name.mid(stem.size()).toLongLong()))
            removeFolder(file.dir().filePath(name));
}

/// Writes over the file that another program may have opened already, and waits to write to it.
WorkingCopy::Outcome overwrite(const QString& path, const QByteArray& expected, const QByteArray& content,
                               QString& reason)
{
    QFile file(path);
    if (!openWhenFree(file, QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        reason = file.errorString();
        return WorkingCopy::Failed;
    }
    QtSettingsLock lock(file, QtSettingsLock::Write);
    if (!lock.take(LockTimeout)) {
        reason = SettingsFileText::tr("another program has locked it");
        return WorkingCopy::Failed;
    }
    const QByteArray present = file.readAll();
    if (file.error() != QFile::NoError) {
        reason = file.errorString();
        return WorkingCopy::Failed;
    }
    if (present != expected)
        return WorkingCopy::Outdated;
    const FileStamp former = stampOf(path);
    const bool isWritten =
        file.resize(0) && file.seek(0) && file.write(content) == content.size() && syncToDisk(file);
    makeLater(path, former);
    // Where there is no room, the spare copy still has its own.
    if (isWritten || replaceFile(spareOf(path), path))
        return WorkingCopy::InPlace;
    reason = systemError();
    return WorkingCopy::Failed;
}

} // namespace

QVariantMap valuesOf(const QSettings& settings)
{
    QVariantMap values;
    for (const QString& key : settings.allKeys()) {
        if (!key.isEmpty() && !key.startsWith('/') && !key.endsWith('/') && !key.contains("//"))
            values.insert(key, settings.value(key));
    }
    return values;
}

WorkingCopy* WorkingCopy::Changing = nullptr;

WorkingCopy::WorkingCopy(const QString& path)
    : m_path(path)
    , m_target(fileBehind(path))
    , m_folder(m_target + FolderMark + QString::number(QCoreApplication::applicationPid()))
    , m_exists(false)
    , m_damaged(false)
{
}

WorkingCopy::~WorkingCopy()
{
    m_settings.reset();
    if (!m_copy.isEmpty())
        removeFolder(m_folder);
}

QString WorkingCopy::nextName() const
{
    // QSettings remembers files by their names, also those that are gone.
    static int number = 0;
    return QString("%1/%2.ini").arg(m_folder).arg(++number);
}

bool WorkingCopy::make(QString& reason)
{
    m_exists = exists(m_target);
    if (m_exists && !mayReplace(m_target)) {
        reason = SettingsFileText::tr("it belongs to another user, who would lose it");
        return false;
    }
    QFile file(m_target);
    if (m_exists && !openWhenFree(file, QIODevice::ReadWrite)) { // It may be read-only.
        reason = file.errorString();
        return false;
    }
    file.close();
    if (!readFile(m_target, m_content, reason))
        return false;
    removeOrphans(m_target);
    removeFolder(m_folder); // Of an earlier process with the same number.
    if (!createPrivateFolder(m_folder)) {
        reason = systemError();
        return false;
    }
    m_copy = nextName();
    const QString damage = settingsDamage(m_content);
    const QString loss = damage.isEmpty() ? droppedComment(m_content) : damage;
    m_damaged = !damage.isEmpty();
    if (!loss.isEmpty() && !keepContent(loss, reason))
        return false;
    const bool endIsKnown = !m_damaged && !m_content.isEmpty();
    QByteArray text = m_damaged ? withoutObjects(m_content) : m_content;
    if (text.startsWith(Utf8Mark)) // It would make QSettings use Qt's own codec.
        text.remove(0, static_cast<int>(qstrlen(Utf8Mark)));
    if (!writeFile(m_copy, endIsKnown ? text + EndText : text, reason))
        return false;
    m_settings = ZelSettingsFile::Open(m_copy);
    if (endIsKnown && !m_settings->contains(EndKey)) {
        reason = SettingsFileText::tr("it cannot be read to its end");
        return false;
    }
    m_settings->remove(EndKey);
    if (!m_damaged)
        return true;
    // QSettings writes nothing of a file that it could not read unless a value is set.
    const QVariantMap values = valuesOf(*m_settings);
    m_copy = nextName();
    m_settings = ZelSettingsFile::Open(m_copy);
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        m_settings->setValue(value.key(), *value);
    return writeFile(m_copy, QByteArray(), reason);
}

bool WorkingCopy::keepContent(const QString& loss, QString& reason) const
{
    // A link may lead to another file system, from which the copy could not be renamed.
    return keepBackup(m_path, m_content, loss, m_path == m_target ? nextName() : m_path + ".bak.new", reason);
}

bool WorkingCopy::write(QString& reason)
{
    const QVariantMap wanted = valuesOf(*m_settings);
    m_settings->sync();
    // Under another name, because QSettings answers from what it remembers.
    const QString former = m_copy;
    m_copy = nextName();
    bool isComplete = replaceFile(former, m_copy);
    if (isComplete) {
        m_settings = ZelSettingsFile::Open(m_copy);
        // More may be there: a name that cannot be looked up, such as "/key", is written as another.
        const auto present = written(valuesOf(*m_settings)), expected = written(wanted);
        isComplete = !m_settings->contains(EndKey);
        for (auto text = expected.constBegin(); text != expected.constEnd(); ++text)
            // Of a damaged file QSettings may have read what it cannot write, such as half of a character.
            isComplete = isComplete && present.contains(text.key()) &&
                         (m_damaged || present.value(text.key()) == *text);
    }
    QFile copy(m_copy);
    if (isComplete && !readFile(m_copy, m_result, reason))
        return false;
    if (isComplete && holdsObjects(m_result)) {
        reason = SettingsFileText::tr("not all values can be kept in it");
        return false;
    }
    if (isComplete) {
        const bool isOnDisk = copy.open(QIODevice::ReadWrite) && syncToDisk(copy);
        reason = isOnDisk ? QString() : systemError();
        return isOnDisk;
    }
    // QSettings does not tell why.
    int size = ProbeSize;
    for (auto value = wanted.constBegin(); value != wanted.constEnd(); ++value)
        size += value.key().size() + textOf(*value).join(",").size();
    if (writeFile(nextName(), QByteArray(size, '\n'), reason))
        reason = SettingsFileText::tr("not all values can be kept in it");
    return false;
}

WorkingCopy::Outcome WorkingCopy::put(bool keepsSpare, QString& reason)
{
    m_settings.reset();
    const bool hasRights = !m_exists || copyRights(m_target, m_copy);
    if (!hasRights)
        QFile::setPermissions(m_copy, QFile::ReadOwner | QFile::WriteOwner);
    const bool replaces = !m_exists || (hasRights && SettingsFilesAreReplaced);
    makeLater(m_copy, stampOf(m_target));
    if (!replaces || keepsSpare) {
        const QString spare = replaces ? nextName() : m_copy;
        if (replaces && !writeFile(spare, m_result, reason))
            return Failed;
        if (replaces)
            copyRights(m_copy, spare);
        if (!replaceFile(spare, spareOf(m_target))) {
            reason = systemError();
            return Failed;
        }
    }
    const Outcome outcome = replaces ? replace(reason) : overwrite(m_target, m_content, m_result, reason);
    // A file that was cut while it was overwritten still needs its spare copy.
    QByteArray present;
    QString ignored;
    if (outcome == Failed ? readFile(m_target, present, ignored) && present == m_content
                          : outcome == Outdated || !keepsSpare)
        QFile::remove(spareOf(m_target));
    return outcome;
}

WorkingCopy::Outcome WorkingCopy::replace(QString& reason) const
{
    const QFile target(m_target);
    QtSettingsLock lock(target, QtSettingsLock::Write);
    QByteArray present;
    if (!lock.take(LockTimeout)) {
        reason = SettingsFileText::tr("another program has locked it");
        return Failed;
    }
    if (!readFile(m_target, present, reason, true))
        return Failed;
    if (exists(m_target) != m_exists || present != m_content)
        return Outdated;
    if (replaceFile(m_copy, m_target))
        return InPlace;
    reason = systemError() + ": " + SettingsFileText::tr("it cannot be replaced by a new one");
    return Failed;
}

bool WorkingCopy::isUnfinished(const QString& path)
{
    const QFileInfo spare(spareOf(fileBehind(path)));
    return spare.isFile() && !spare.isSymLink();
}

bool WorkingCopy::finish(const QString& path, bool givesRights, QString& reason)
{
    const QString target = fileBehind(path), spare = spareOf(target);
    QByteArray wanted, present;
    if (!readFile(spare, wanted, reason) || !readFile(target, present, reason))
        return false;
    if (present == wanted) {
        if (givesRights)
            copyRights(spare, target);
    } else if (wanted.startsWith(present)) {
        if (!(SettingsFilesAreReplaced && copyRights(target, spare) && replaceFile(spare, target)) &&
            overwrite(target, present, wanted, reason) != InPlace)
            return false;
    } else if (!keepBackup(path, wanted, "its writing was cut short, and another program has written it",
                           spare + ".new", reason)) {
        return false;
    }
    QFile::remove(spare);
    return true;
}

} // namespace zel
