#include "WorkingCopy.h"

#include "FileAccess.h"
#include "IniCodec.h"
#include "SettingsBackup.h"
#include "SettingsDamage.h"
#include "SettingsReasons.h"
#include "SettingsValidation.h"
#include "SettingsValues.h"
#include "base/QtSettingsFile.h"
#include "base/QtSettingsLock.h"
#include "base/SystemFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>

#include <algorithm>

namespace zel {

namespace {

const int ProbeSize = 16384; // Bytes; more than what a file system gives away unasked.

// The last setting of a new copy. If QSettings finds it, it has read the copy to its end.
const char* const EndKey = "end of the working copy/isRead";
const char* const EndText = "\n[end%20of%20the%20working%20copy]\nisRead=true\n";

const char* const FolderMark = ".new-"; // Before the number of the process.

/// The values as QSettings writes them, whatever their types. Where it ignores case, it lists a name both as
/// it was read and as it was set.
QMap<QString, QString> textsOf(const QSettings& settings)
{
    QMap<QString, QString> texts;
    const QVariantMap values = valuesOf(settings);
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        texts.insert(SettingsIgnoreCase ? value.key().toLower() : value.key(),
                     isList(*value) ? value->toStringList().join("\n") : value->toString());
    return texts;
}

/// Makes a double of each float, which QSettings would serialise.
void widenFloats(QSettings& settings)
{
    const QVariantMap values = valuesOf(settings);
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        if (value->userType() == QMetaType::Float)
            settings.setValue(value.key(), value->toDouble());
}

/// The mark of the encoding would make QSettings use Qt's own codec.
QByteArray withoutMark(const QByteArray& text)
{
    return text.startsWith(Utf8Mark) ? text.mid(static_cast<int>(qstrlen(Utf8Mark))) : text;
}

/// Opens a copy of the file in its encoding.
std::unique_ptr<QSettings> openSettings(const QString& path)
{
    auto settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    settings->setIniCodec(&iniCodec());
    return settings;
}

QString unreadReason()
{
    return SettingsFileText::tr("it cannot be read to its end");
}

/// Removes the folder of a copy, and nothing that is not ours.
void removeFolder(const QString& path)
{
    if (QDir().rmdir(path) || QFileInfo(path).isSymLink())
        return;
    QDir folder(path);
    for (const QString& name : folder.entryList(QDir::Files | QDir::System | QDir::Hidden))
        if (name.at(0).isDigit())
            folder.remove(name);
    QDir().rmdir(path);
}

/// Removes the folders that killed writers have left, also one with the number of this process.
void removeOrphans(const QString& target)
{
    const QFileInfo file(target);
    const QString stem = file.fileName() + FolderMark;
    for (const QString& name : file.dir().entryList(QDir::Dirs | QDir::Hidden)) {
        const qint64 process = name.mid(stem.size()).toLongLong();
        if (name.startsWith(stem) &&
            (process == QCoreApplication::applicationPid() || !isProcessRunning(process)))
            removeFolder(file.dir().filePath(name));
    }
}

} // namespace

const WorkingCopy* WorkingCopy::s_changing = nullptr;

WorkingCopy::WorkingCopy(const SettingsLock& lock)
    : m_lock(lock)
    , m_target(lock.target())
    , m_folder(m_target + FolderMark + QString::number(QCoreApplication::applicationPid()))
    , m_exists(false)
    , m_mustBeWritten(false)
    , m_isWritten(false)
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

bool WorkingCopy::make(const QVariantMap& known, QString& reason)
{
    m_exists = exists(m_target);
    if (m_exists && !mayReplace(m_target)) {
        reason = foreignReason();
        return false;
    }
    if (!readFile(m_target, m_content, reason, m_lock.deadline(), QIODevice::ReadWrite))
        return false;
    removeOrphans(m_target);
    if (!createPrivateFolder(m_folder)) {
        reason = systemError();
        return false;
    }
    m_copy = nextName();
    const QString damage = settingsDamage(m_content);
    const QString loss = damage.isEmpty() ? droppedComment(m_content) : damage;
    m_mustBeWritten = !damage.isEmpty();
    if (!loss.isEmpty() && !keepContent(loss, reason))
        return false;
    const QByteArray text = m_mustBeWritten ? withoutObjects(m_content) : m_content + EndText;
    if (!writeFile(m_copy, withoutMark(text), reason))
        return false;
    m_settings = openSettings(m_copy);
    if (!m_mustBeWritten && !m_settings->contains(EndKey)) {
        reason = unreadReason();
        return false;
    }
    m_settings->remove(EndKey);
    return restoreLost(known, reason);
}

bool WorkingCopy::restoreLost(const QVariantMap& known, QString& reason)
{
    QVariantMap values = valuesOf(*m_settings);
    if (m_mustBeWritten || m_content.isEmpty() || lacksRegistered(values, known)) {
        const int count = values.size();
        values = united(values, known);
        m_mustBeWritten = m_mustBeWritten || values.size() > count;
    }
    return !m_mustBeWritten || makeOf(values, reason);
}

bool WorkingCopy::makeOf(const QVariantMap& values, QString& reason)
{
    m_copy = nextName();
    m_settings = openSettings(m_copy);
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        m_settings->setValue(value.key(), *value);
    m_settings->setValue(EndKey, true);
    if (!writeFile(m_copy, QByteArray(), reason) || !writeAndCompare(false, reason))
        return false;
    m_settings->remove(EndKey); // A change: what was just read is written again, even if it lacks something.
    return true;
}

bool WorkingCopy::parse(const QByteArray& content, QVariantMap& values, QString& reason) const
{
    const QString name = nextName();
    const bool isWhole = settingsDamage(content).isEmpty();
    if (!writeFile(name, withoutMark(content) + (isWhole ? EndText : ""), reason))
        return false;
    values = valuesOf(*openSettings(name));
    const bool isRead = values.remove(EndKey) > 0 || !isWhole;
    if (!isRead)
        reason = unreadReason();
    return isRead;
}

bool WorkingCopy::keepContent(const QString& loss, QString& reason) const
{
    // A link may lead to another file system, from which the copy could not be renamed.
    return keepBackup(path(), m_content, loss, path() == m_target ? nextName() : path() + ".bak.new", reason);
}

bool WorkingCopy::writeAndCompare(bool isExact, QString& reason)
{
    widenFloats(*m_settings);
    const QMap<QString, QString> wanted = textsOf(*m_settings);
    m_settings->sync();
    const QString former = m_copy;
    m_copy = nextName(); // QSettings answers from what it remembers of a name.
    const bool isThere = replaceFile(former, m_copy);
    m_settings = openSettings(m_copy);
    const QMap<QString, QString> present = textsOf(*m_settings);
    if (isThere && (isExact ? present == wanted : present.keys() == wanted.keys()))
        return true;
    // QSettings does not tell why.
    const QString all = QStringList(wanted.keys() + wanted.values()).join(QString());
    if (writeFile(nextName(), QByteArray(all.size() + ProbeSize, '\n'), reason))
        reason = lossReason();
    return false;
}

bool WorkingCopy::write(QString& reason)
{
    if (!writeAndCompare(true, reason))
        return false;
    QFile copy(m_copy);
    if (!copy.open(QIODevice::ReadWrite | QIODevice::Unbuffered) || !syncToDisk(copy)) {
        reason = systemError();
        return false;
    }
    if (!readOpenFile(copy, m_result, reason))
        return false;
    m_isWritten = true;
    const bool isGood = settingsDamage(m_result).isEmpty();
    if (!isGood) // As with an object, or with what was left of a longer text.
        reason = lossReason();
    return isGood;
}

Outcome WorkingCopy::put(QString& reason)
{
    const bool hasRights = takeRights();
    if (!m_exists || (hasRights && SettingsFilesAreReplaced))
        return replace(reason);
    const SpareCopy spare(m_target, m_lock.deadline());
    if (!spare.adopt(m_copy, reason))
        return Outcome::Failed;
    const Outcome outcome = spare.overwrite(m_content, m_result, reason);
    // A file that was cut still needs it.
    QByteArray present;
    QString ignored;
    if (outcome != Outcome::Failed ||
        (readFile(m_target, present, ignored, m_lock.deadline()) && present == m_content))
        spare.remove();
    return outcome;
}

bool WorkingCopy::putAside(const SpareCopy& spare, QString& reason)
{
    if (!m_exists)
        return true;
    if (takeRights())
        return spare.adopt(m_copy, reason);
    reason = foreignReason();
    return false;
}

bool WorkingCopy::takeRights()
{
    m_settings.reset();
    const bool hasRights = !m_exists || copyRights(m_target, m_copy);
    if (!hasRights)
        QFile::setPermissions(m_copy, QFile::ReadOwner | QFile::WriteOwner);
    return hasRights;
}

Outcome WorkingCopy::replace(QString& reason) const
{
    QFile target(m_target);
    QtSettingsLock lock(target, QtSettingsLock::Write); // On Windows it needs no open file.
    if (!lock.take(m_lock.deadline().remaining())) {
        reason = lockedReason();
        return Outcome::Failed;
    }
    QByteArray present;
    const bool isThere = openWhenFree(target, QIODevice::ReadOnly | QIODevice::Unbuffered);
    if (!isThere && exists(m_target)) {
        reason = target.errorString();
        return Outcome::Failed;
    }
    if (isThere && !readOpenFile(target, present, reason))
        return Outcome::Failed;
    target.close(); // Windows replaces no open file.
    if (isThere != m_exists || present != m_content) {
        reason = lockedReason();
        return Outcome::Outdated;
    }
    makeLater(m_copy, stampOf(m_target));
    if (replaceFile(m_copy, m_target))
        return Outcome::InPlace;
    reason = systemError() + ": " + SettingsFileText::tr("it cannot be replaced by a new one");
    return Outcome::Failed;
}

} // namespace zel
