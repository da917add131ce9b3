#include "ZelSettingsFile.h"

#include "FileAccess.h"
#include "IniCodec.h"
#include "SettingsBackup.h"
#include "SettingsDamage.h"
#include "SettingsValidation.h"
#include "UnfinishedWrite.h"
#include "base/ZelFileFunctions.h"
#include "base/ZelQtCompat.h"
#include "base/ZelSystemCompat.h"

#include <QEvent>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <system_error>
#include <thread>

namespace zel {

namespace {

const std::chrono::milliseconds ClockTick(10); // Systems count the time of files in ticks of up to this.

bool refuseWriting(const QString& path, const QString& reason, QString& error)
{
    return failWith(SettingsFileText::tr("Could not write the Torvane settings file \"%1\": %2"), path,
                    reason, error);
}

/// All values, except those with names that QSettings reads from a file but cannot look up.
QVariantMap valuesOf(const QSettings& settings)
{
    QVariantMap values;
    for (const QString& key : settings.allKeys()) {
        if (!key.isEmpty() && !key.startsWith('/') && !key.endsWith('/') && !key.contains("//"))
            values.insert(key, settings.value(key));
    }
    return values;
}

/// One write of a settings file. QSettings locks the file, merges what others have written into it, and
/// replaces it in one step; this class closes the gaps that are left. At any moment, also when the process is
/// killed, the file holds its old content or the new one. Without a commit that succeeds, the destructor puts
/// the former values back into the settings.
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

    /// Keeps a copy of the file where writing would lose something. False, with a translated text, when the
    /// file cannot be written.
    bool prepare(QString& error)
    {
        if (!SettingsReplaceTheirFile)
            UnfinishedWrite::recover(m_path);
        if (!ZelSettingsFile::IsWritable(m_path, error))
            return false;
        ageStaleLock(m_path);
        const QFileInfo file(m_path);
        m_existed = file.exists();
        m_owner = file.ownerId();
        m_group = file.groupId();
        m_content = contentOfFile(m_path);
        const QString damage = settingsDamage(m_content);
        const QString loss = damage.isEmpty() ? droppedComment(m_content) : damage;
        m_damaged = !damage.isEmpty();
        m_prepared = (loss.isEmpty() || keepBackup(m_path, loss, error)) &&
                     (SettingsReplaceTheirFile || UnfinishedWrite::begin(m_path, error));
        return m_prepared;
    }

    /// Reads what others have written, and restores the values that a damaged or cut file has lost.
    void readAgain()
    {
        const QVariantMap held = valuesOf(m_settings);
        m_settings.sync();
        ZelSettingsFile::UseFileEncoding(m_settings); // Reading the UTF-8 mark brings Qt's own codec back.
        const auto& registered = ZelSettingsRegistry::GetDefaultSettingsValues();
        const bool isCut = std::any_of(registered.begin(), registered.end(), [&](const auto& entry) {
            return held.contains(entry.first) && !m_settings.contains(entry.first);
        });
        for (auto value = held.constBegin(); value != held.constEnd(); ++value) {
            if ((m_damaged || m_content.isEmpty() || isCut) && !m_settings.contains(value.key()))
                m_settings.setValue(value.key(), *value);
        }
    }

    /// Sets what the settings held before the change and what they hold now. Unchanged keys may be missing.
    void setChange(const QVariantMap& before, const QVariantMap& after)
    {
        m_before = before;
        m_after = after;
    }

    /// Makes QSettings read the file again before it writes, even if others have changed it to the same size
    /// within one tick of the clock: gives it a time that QSettings cannot know.
    void forceMerge() const
    {
        // Reading the mark once more would bring Qt's own codec back, which loses characters.
        if (m_before == m_after || m_content.startsWith(Utf8Mark))
            return;
        std::error_code error;
        const auto time = std::filesystem::last_write_time(nativePath(m_path), error);
        if (error)
            return; // There is no file.
        if (std::filesystem::file_time_type::clock::now() - time < ClockTick)
            std::this_thread::sleep_for(ClockTick); // Only where others have just written.
        std::filesystem::last_write_time(nativePath(m_path), time + std::chrono::milliseconds(1), error);
    }

    /// Writes the values. False, with a translated text, when they are not in the file afterwards.
    bool commit(QString& error)
    {
        m_written = succeedsWhenFree([this] {
            m_settings.sync();
            return isWritten();
        });
        return m_written || refuseWriting(m_path, probeWriteError(m_path), error);
    }

private:
    Q_DISABLE_COPY(SettingsWrite)

    /// False when the file lacks lines, because the disk was full: QSettings does not notice that. Such a
    /// file ends at the end of a block, so other sizes are not read.
    bool isWhole() const
    {
        const int smallestBlock = 512;
        if (QFileInfo(m_path).size() % smallestBlock != 0)
            return true;
        const QByteArray content = contentOfFile(m_path);
        if (!content.isEmpty() && content == m_content)
            return true;
        int lines = 0;
        for (const QByteArray& line : content.split('\n')) {
            if (!line.trimmed().isEmpty() && !line.startsWith('['))
                ++lines;
        }
        // Others may have added some by now.
        return lines >= valuesOf(m_settings).size() && (content.isEmpty() || content.endsWith('\n'));
    }

    bool isWritten() const
    {
        if (!isWhole())
            return false;
        if (m_settings.status() == QSettings::NoError)
            return true;
        if (m_before == m_after && !m_damaged)
            return true;
        // The status keeps an earlier error, so the content tells whether this write has succeeded.
        QFile file(m_path);
        return openWhenFree(file, QIODevice::ReadOnly) && file.readAll() != m_content;
    }

    void rollBack()
    {
        // All values, because removing a key also removes the group of its name.
        QVariantMap values = valuesOf(m_settings);
        for (const QString& key : m_after.keys()) {
            if (!m_before.contains(key)) {
                values.remove(key);
                m_settings.remove(key);
            }
        }
        for (auto value = m_before.constBegin(); value != m_before.constEnd(); ++value)
            values.insert(value.key(), *value);
        for (auto value = values.constBegin(); value != values.constEnd(); ++value) {
            if (m_settings.value(value.key()) != *value)
                m_settings.setValue(value.key(), *value);
        }
        m_settings.sync();
        // At this event QSettings would try once more, unprotected, to write what it could not write.
        QCoreApplication::removePostedEvents(&m_settings, QEvent::UpdateRequest);
    }

    /// Writes the old content over a file that is cut short, for which there is room again; removes a new
    /// one.
    void restoreContent() const
    {
        QFile file(m_path);
        if (!m_existed)
            file.remove();
        else if (!file.open(QIODevice::WriteOnly) || file.write(m_content) != m_content.size() ||
                 !file.flush())
            logWarning(
                QString("Could not put the content of \"%1\" back: %2.").arg(m_path, file.errorString()));
    }

    void restoreOwner() const
    {
        const QFileInfo file(m_path); // The new one belongs to the user who has written it.
        if (m_existed && file.isFile() && (file.ownerId() != m_owner || file.groupId() != m_group) &&
            !giveFileTo(file.canonicalFilePath(), m_owner, m_group))
            logWarning(QString("Could not give \"%1\" back to its owner and group.").arg(m_path));
    }

    QSettings& m_settings;
    const QString m_path;
    QByteArray m_content; ///< Before the write.
    bool m_damaged = false;
    bool m_existed = false;
    uint m_owner = 0;
    uint m_group = 0;
    QVariantMap m_before;
    QVariantMap m_after;
    bool m_prepared = false;
    bool m_written = false;
};

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
           failWith(SettingsFileText::tr("Could not read the Torvane settings file \"%1\": %2"), path, reason,
                    error);
}

bool ZelSettingsFile::IsWritable(const QString& path, QString& error)
{
    const QString reason = unwritableReason(path);
    return reason.isEmpty() || refuseWriting(path, reason, error);
}

bool ZelSettingsFile::Write(QSettings& settings, const Change& change, QString& error)
{
    SettingsWrite write(settings);
    if (!write.prepare(error))
        return false;
    write.readAgain();
    const QVariantMap before = valuesOf(settings);
    const bool isChanged = change(settings, error);
    write.setChange(before, valuesOf(settings));
    if (!isChanged)
        return false;
    write.forceMerge();
    return write.commit(error);
}

bool ZelSettingsFile::Repair(QSettings& settings, QString& error)
{
    const QString path = settings.fileName();
    const bool isDamaged = !settingsDamage(contentOfFile(path)).isEmpty();
    QVariantMap before, repaired;
    bool losesList = false;
    const auto take = [&](const auto& entry, const QVariant& stored, const QString& text) {
        // Of a damaged file one value is written even if all are valid, because that replaces the file.
        if (!needsRepair(stored, text) && (!isDamaged || !repaired.isEmpty()))
            return;
        if (stored.isValid())
            before.insert(entry.first, stored);
        repaired.insert(entry.first, text);
        losesList = losesList || isList(stored);
    };
    if (!validateSettings(settings, error, take))
        return false;
    if (repaired.isEmpty())
        return runEndChecks(settings, error);
    SettingsWrite write(settings);
    if (!write.prepare(error) ||
        (losesList && !keepBackup(path, "it holds a list in place of a text", error)))
        return false;
    write.setChange(before, repaired);
    for (auto text = repaired.constBegin(); text != repaired.constEnd(); ++text)
        settings.setValue(text.key(), *text);
    return write.commit(error) && runEndChecks(settings, error);
}

} // namespace zel
