#include "ZelSettingsFile.h"

#include "FileAccess.h"
#include "IniCodec.h"
#include "SettingsBackup.h"
#include "SettingsDamage.h"
#include "SettingsValidation.h"
#include "UnfinishedWrite.h"
#include "base/ZelQtCompat.h"
#include "base/ZelSystemCompat.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <system_error>
#include <thread>

// QSettings locks the file, merges what others have written into it, and replaces it in one step. What that
// leaves open is closed here:
// - A file that cannot be parsed is replaced by what could be: a copy of it is kept.
// - Qt before 5.10 rewrites the file in place, and a process that dies meanwhile leaves half of it: the old
//   content stands beside it for that long.
// - A file that begins with the UTF-8 mark brings Qt's own codec back, which loses characters.
// - The new file belongs to the user who has written it.
// - Whether others have changed the file is told by its size and its time alone, so the file gets another
//   time before QSettings merges.
// - The status keeps the first error, so after one the content tells whether a write has succeeded.
// - What could not be written is written later, unprotected, as soon as QSettings comes to events.

namespace zel {

namespace {

using FileTime = std::filesystem::file_time_type;

const std::chrono::milliseconds ClockTick(10); // Systems count the time of files in ticks of up to this.
const std::chrono::milliseconds RetryPause(50);
const qint64 Growth = 8192; // More bytes than one write is likely to add.

/// False for a name that QSettings reads from a file, but takes for another one when it is asked for it.
bool isPlain(const QString& key)
{
    return !key.isEmpty() && !key.startsWith('/') && !key.endsWith('/') && !key.contains("//");
}

QVariantMap valuesOf(const QSettings& settings)
{
    QVariantMap values;
    for (const QString& key : settings.allKeys()) {
        if (isPlain(key))
            values.insert(key, settings.value(key));
    }
    return values;
}

/// How many lines QSettings writes for keys: one for "/name" and "name" together.
int lineCount(const QStringList& keys)
{
    QSet<QString> names;
    for (const QString& key : keys)
        names.insert(key.startsWith('/') ? key.mid(1) : key);
    return names.size();
}

/// One write of a settings file. At any moment, also when the process is killed, the file holds its old
/// content or the new one. Without a commit that succeeds, the end puts the former values back into the
/// settings.
class SettingsWrite
{
public:
    /// The settings must outlive the write.
    explicit SettingsWrite(QSettings& settings)
        : m_settings(settings)
        , m_path(settings.fileName())
    {
    }

    ~SettingsWrite()
    {
        if (!m_prepared)
            return;
        if (!m_written)
            rollBack();
        if (!SettingsReplaceTheirFile)
            UnfinishedWrite::end(m_path, m_written);
        else if (!m_written && !isWhole())
            restoreContent();
        restoreOwner();
    }

    SettingsWrite(const SettingsWrite&) = delete;
    SettingsWrite& operator=(const SettingsWrite&) = delete;

    /// Gets the file ready, and keeps a copy of it where writing would lose something. False, with a
    /// translated text, when nothing should be changed.
    bool prepare(QString& error)
    {
        if (!SettingsReplaceTheirFile)
            UnfinishedWrite::recover(m_path);
        const QString refusal = unwritableReason(m_path);
        if (!refusal.isEmpty())
            return refuseWriting(m_path, refusal, error);
        m_content = contentOfFile(m_path);
        const QString noRoom = roomReason(m_path, m_content.size() + Growth);
        if (!noRoom.isEmpty())
            return refuseWriting(m_path, noRoom, error);
        const QString damage = settingsDamage(m_content);
        const QString loss = damage.isEmpty() ? droppedComment(m_content) : damage;
        m_lostContent = m_content.isEmpty() || !damage.isEmpty();
        const QFileInfo file(m_path);
        m_owner = file.ownerId();
        m_group = file.groupId();
        m_existed = file.exists();
        m_prepared = (loss.isEmpty() || keepBackup(m_path, loss, error)) &&
                     (SettingsReplaceTheirFile || UnfinishedWrite::begin(m_path, error));
        return m_prepared;
    }

    /// True when the file was damaged or empty.
    bool hasLostContent() const { return m_lostContent; }

    /// To be called for a value before it is changed; an invalid one for a key that is added.
    void noteFormer(const QString& key, const QVariant& value) { m_former.insert(key, value); }

    /// Notes all values, and that other keys are added.
    void noteAllFormer()
    {
        m_former = valuesOf(m_settings);
        m_allNoted = true;
    }

    /// Writes the values and verifies that they are in the file. False, with a translated text, when they are
    /// not.
    bool commit(QString& error)
    {
        // Reading the UTF-8 mark once more would bring Qt's own codec back.
        if (m_allNoted && hasChanged() && !m_content.startsWith("\xEF\xBB\xBF"))
            forceReading();
        QElapsedTimer clock;
        clock.start();
        m_settings.sync();
        m_written = isWritten();
        while (!m_written && clock.elapsed() < BusyFileTimeout) {
            std::this_thread::sleep_for(RetryPause);
            m_settings.sync();
            m_written = isWritten();
        }
        return m_written || refuseWriting(m_path, probeWriteError(m_path), error);
    }

private:
    bool hasChanged() const { return m_allNoted ? valuesOf(m_settings) != m_former : !m_former.isEmpty(); }

    /// Gives the file a time at which QSettings cannot have read it.
    void forceReading() const
    {
        std::error_code error;
        const FileTime time = std::filesystem::last_write_time(nativePath(m_path), error);
        const FileTime now = FileTime::clock::now();
        if (error)
            return; // There is no file.
        if (time <= now && now < time + ClockTick)
            std::this_thread::sleep_until(time + ClockTick); // Only where others have just written.
        std::filesystem::last_write_time(nativePath(m_path), time + std::chrono::milliseconds(1), error);
    }

    /// Whether the file holds a line for every value. QSettings does not notice when the disk is full before
    /// the last of them; the file then ends with a block.
    bool isWhole() const
    {
        const int smallestBlock = 512;
        if (SettingsReplaceTheirFile && QFileInfo(m_path).size() % smallestBlock != 0)
            return true;
        int lines = 0;
        for (const QByteArray& line : contentOfFile(m_path).split('\n'))
            lines += !line.trimmed().isEmpty() && !line.startsWith('[');
        return lines >= lineCount(m_settings.allKeys()); // Others may have added some by now.
    }

    bool isWritten() const
    {
        if (!isWhole())
            return false;
        return m_settings.status() == QSettings::NoError || contentOfFile(m_path) != m_content ||
               !hasChanged();
    }

    /// Puts the old content into the place of a file that is cut short, which has made room for it.
    void restoreContent() const
    {
        QFile file(m_path);
        if (m_content.isEmpty() || contentOfFile(m_path) == m_content)
            return;
        if (!file.open(QIODevice::WriteOnly) || file.write(m_content) != m_content.size() || !file.flush())
            logWarning(
                QString("Could not put the content of \"%1\" back: %2.").arg(m_path, file.errorString()));
    }

    void rollBack()
    {
        for (const QString& key : m_allNoted ? m_settings.allKeys() : QStringList()) {
            if (isPlain(key) && !m_former.contains(key))
                m_former.insert(key, QVariant());
        }
        for (auto former = m_former.constBegin(); former != m_former.constEnd(); ++former) {
            if (!former->isValid())
                removeAlone(former.key());
            else if (m_settings.value(former.key()) != *former)
                m_settings.setValue(former.key(), *former);
        }
        m_settings.sync();
        QCoreApplication::removePostedEvents(&m_settings, QEvent::UpdateRequest);
    }

    /// Removes a key, but not what stands in a group of that name.
    void removeAlone(const QString& key)
    {
        if (!m_settings.contains(key))
            return;
        m_settings.beginGroup(key);
        const QVariantMap children = valuesOf(m_settings);
        m_settings.endGroup();
        m_settings.remove(key);
        for (auto child = children.constBegin(); child != children.constEnd(); ++child)
            m_settings.setValue(key + '/' + child.key(), *child);
    }

    /// Gives the new file to the owner of the former one.
    void restoreOwner() const
    {
        const QFileInfo file(m_path);
        if (!file.isFile() || !m_existed)
            return;
        if ((file.ownerId() != m_owner || file.groupId() != m_group) &&
            !giveFileTo(file.canonicalFilePath(), m_owner, m_group))
            logWarning(QString("Could not give \"%1\" back to its owner and group.").arg(m_path));
    }

    QSettings& m_settings;
    const QString m_path;
    QByteArray m_content;
    bool m_lostContent = false;
    uint m_owner = 0;
    uint m_group = 0;
    bool m_existed = false;
    QVariantMap m_former;
    bool m_allNoted = false;
    bool m_prepared = false;
    bool m_written = false;
};

/// Brings back what a damaged file has lost since it was read. One that lacks a registered key has lost more.
void restoreLost(QSettings& settings, const QVariantMap& held, bool hasLostContent)
{
    const auto& registered = ZelSettingsRegistry::GetDefaultSettingsValues();
    if (!hasLostContent && std::none_of(registered.begin(), registered.end(), [&](const auto& entry) {
            return held.contains(entry.first) && !settings.contains(entry.first);
        }))
        return;
    for (auto value = held.constBegin(); value != held.constEnd(); ++value) {
        if (!settings.contains(value.key()))
            settings.setValue(value.key(), *value);
    }
}

} // namespace

std::unique_ptr<QSettings> ZelSettingsFile::Open(const QString& path)
{
    auto settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    UseFileEncoding(*settings);
    return settings;
}

void ZelSettingsFile::UseFileEncoding(QSettings& settings)
{
    settings.setIniCodec(&iniCodec());
}

bool ZelSettingsFile::IsUsable(const QString& path, QString& error)
{
    if (!SettingsReplaceTheirFile)
        UnfinishedWrite::recover(path);
    const QString reason = unreadableReason(path);
    return reason.isEmpty() ||
           fail(Text::tr("Could not read the Torvane settings file \"%1\": %2").arg(path, reason), error);
}

bool ZelSettingsFile::IsWritable(const QString& path, QString& error)
{
    const QString reason = unwritableReason(path);
    return reason.isEmpty() || refuseWriting(path, reason, error);
}

bool ZelSettingsFile::Write(QSettings& settings, const Change& change, QString& error)
{
    const QVariantMap held = valuesOf(settings);
    SettingsWrite write(settings);
    if (!write.prepare(error))
        return false;
    settings.sync(); // Reads what others have written, which may bring back Qt's own codec.
    UseFileEncoding(settings);
    restoreLost(settings, held, write.hasLostContent());
    write.noteAllFormer();
    return change(settings, error) && write.commit(error);
}

bool ZelSettingsFile::Repair(QSettings& settings, QString& error)
{
    SettingsWrite write(settings);
    QVariantMap repaired;
    bool losesList = false;
    const auto take = [&](const auto& entry, const QVariant& stored, const QString& text) {
        if (!isRepair(stored, text))
            return;
        repaired.insert(entry.first, text);
        losesList = losesList || isList(stored);
        write.noteFormer(entry.first, stored);
    };
    if (!validateSettings(settings, error, take))
        return false;
    const QString path = settings.fileName();
    if (repaired.isEmpty() && settingsDamage(contentOfFile(path)).isEmpty())
        return runEndChecks(settings, error);
    if (!write.prepare(error) ||
        (losesList && !keepBackup(path, "it holds a list in place of a text", error)))
        return false;
    for (auto text = repaired.constBegin(); text != repaired.constEnd(); ++text)
        settings.setValue(text.key(), *text);
    // What is damaged goes when QSettings writes anything.
    const auto& registered = ZelSettingsRegistry::GetDefaultSettingsValues();
    if (repaired.isEmpty() && !registered.empty()) {
        const QString& key = registered.begin()->first;
        write.noteFormer(key, settings.value(key));
        settings.setValue(key, settings.value(key));
    }
    return write.commit(error) && runEndChecks(settings, error);
}

} // namespace zel
