#include "ZelSettingsFile.h"

#include "FileAccess.h"
#include "IniCodec.h"
#include "Log.h"
#include "SettingsBackup.h"
#include "SettingsDamage.h"
#include "SettingsValidation.h"
#include "WorkingCopy.h"
#include "base/FileLock.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <map>
#include <vector>

namespace zel {

namespace {

/// Lets pages see the copy while a change runs, also if it ends with an exception.
class Visible
{
public:
    explicit Visible(WorkingCopy& copy) { WorkingCopy::Changing = &copy; }
    ~Visible() { WorkingCopy::Changing = nullptr; }

private:
    Q_DISABLE_COPY(Visible)
};

/// Keeps other programs from writing a file.
class SettingsLock
{
public:
    SettingsLock(const QString& path, const Deadline& deadline)
        : m_names(namesOf(path))
        , m_deadline(deadline)
    {
        QDir().mkpath(QFileInfo(path).path());
        for (const QString& name : m_names)
            m_locks.push_back(std::make_unique<FileLock>(name + ".lock"));
    }

    /// Waits for others. False, with the reason, when that takes too long.
    bool wait(QString& reason)
    {
        for (const auto& lock : m_locks) {
            const FileLock::State state = lock->take(m_deadline.remaining());
            if (state != FileLock::Free) {
                reason = lockReason(*lock, state == FileLock::Held);
                release();
                return false;
            }
        }
        return true;
    }

    /// Waits for others, and ends a write that was killed. False, with the reason, when that fails.
    bool take(QString& reason)
    {
        const SpareCopy spare(m_names.first());
        return wait(reason) && (!spare.exists() || spare.finish(m_deadline, reason));
    }

    void release()
    {
        for (const auto& lock : m_locks)
            lock->release();
    }

private:
    const QStringList m_names;
    const Deadline& m_deadline;
    std::vector<std::unique_ptr<FileLock>> m_locks;
};

void set(QSettings& settings, const QVariantMap& before, const QVariantMap& after)
{
    for (auto value = before.constBegin(); value != before.constEnd(); ++value)
        if (!after.contains(value.key()))
            settings.remove(value.key());
    for (auto value = after.constBegin(); value != after.constEnd(); ++value)
        if (!before.contains(value.key()) || before.value(value.key()) != *value)
            settings.setValue(value.key(), *value);
}

/// Set in settings that hold values which they could not write.
const char* const UnwrittenProperty = "zelUnwritten";

/// Finds out whether settings are about to write: they have posted an event to themselves.
class PendingProbe : public QObject
{
public:
    static bool finds(QSettings& settings)
    {
        PendingProbe probe;
        settings.installEventFilter(&probe);
        QCoreApplication::sendPostedEvents(&settings, QEvent::UpdateRequest);
        settings.removeEventFilter(&probe);
        if (probe.m_isFound) // Without it they would never post one again.
            QCoreApplication::postEvent(&settings, new QEvent(QEvent::UpdateRequest));
        return probe.m_isFound || settings.property(UnwrittenProperty).toBool();
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        m_isFound = m_isFound || event->type() == QEvent::UpdateRequest;
        return true;
    }

private:
    bool m_isFound = false;
};

/// The settings that a write is asked for. They only read the file. A change may set values in them all the
/// same, as many a page does: QSettings cannot forget these, and has to write them.
class SharedSettings
{
public:
    SharedSettings(QSettings& settings, const Deadline& deadline)
        : m_settings(settings)
        , m_held(valuesOf(settings))
        , m_hasPending(PendingProbe::finds(settings))
        , m_deadline(deadline)
    {
    }

    /// Unless the file has been written, they hold again what they held.
    ~SharedSettings()
    {
        const QVariantMap shown = valuesOf(m_settings);
        if (m_isWritten || shown == m_held)
            return;
        set(m_settings, shown, m_held);
        QString ignored;
        writePending(ignored);
    }

    const QVariantMap& held() const { return m_held; }

    /// Sets in a copy of the file what the change has set here.
    void carryOver(QSettings& copy) const { set(copy, m_held, valuesOf(m_settings)); }

    /// True until catchUp() when there may be values that were set before the write, and are not in the file.
    bool isBehind(const QVariantMap& file) const { return !m_isCaughtUp && (m_hasPending || m_held != file); }

    /// Lets the file have such values, and reads what others have written. Not to be called under the lock.
    /// False, with the reason, when that is not possible.
    bool catchUp(QString& reason)
    {
        m_isCaughtUp = writePending(reason);
        m_held = valuesOf(m_settings);
        return m_isCaughtUp;
    }

    /// To be called when the file is written, and not under its lock. False, with the reason, when it has not
    /// stayed whole.
    bool readWritten(QString& reason)
    {
        m_isWritten = true;
        if (valuesOf(m_settings) != m_held)
            return writePending(reason) || !SpareCopy(resolvedPath(m_settings.fileName())).exists();
        readAgain();
        return true;
    }

private:
    Q_DISABLE_COPY(SharedSettings)

    void readAgain()
    {
        m_settings.sync();
        ZelSettingsFile::UseFileEncoding(m_settings); // Reading the UTF-8 mark brings Qt's own codec back.
    }

    /// Lets them write, so that nothing is pending. QSettings of Qt 4 may cut the file, and that of Qt 5
    /// changes its rights, so a spare copy stands beside it. It is left only when it could not help. False,
    /// with the reason, when nothing is written, or a spare copy is left.
    bool writePending(QString& reason)
    {
        const QString target = resolvedPath(m_settings.fileName());
        const SpareCopy spare(target);
        SettingsLock lock(m_settings.fileName(), m_deadline);
        if (!lock.take(reason) || (exists(target) && !spare.make(reason))) {
            // They would wait without end, or write without protection.
            QCoreApplication::removePostedEvents(&m_settings, QEvent::UpdateRequest);
            m_settings.setProperty(UnwrittenProperty, true);
            return false;
        }
        m_settings.setProperty(UnwrittenProperty, QVariant());
        lock.release();
        readAgain();
        spare.giveRights();
        // Whoever holds it now has to bring the file to its end.
        return !lock.wait(reason) || !spare.exists() || spare.finish(m_deadline, reason);
    }

    QSettings& m_settings;
    QVariantMap m_held;
    const bool m_hasPending;
    const Deadline& m_deadline;
    bool m_isCaughtUp = false;
    bool m_isWritten = false;
};

/// Keeps a dated copy of a file in which a list stands in place of a registered text, and now the text.
/// False, with the reason, when that is not possible.
bool keepLists(const WorkingCopy& copy, const QVariantMap& before, QString& reason)
{
    const auto& registered = ZelSettingsRegistry::GetDefaultSettingsValues();
    const bool losesList = std::any_of(registered.begin(), registered.end(), [&](const auto& entry) {
        return isList(before.value(entry.first)) && !isList(copy.settings().value(entry.first));
    });
    return !losesList || copy.keepContent("it holds a list in place of a text", reason);
}

/// Drops the serialised objects of a file. False, with the reason, when that is not possible.
bool dropObjects(const QString& path, const Deadline& deadline, QString& reason)
{
    SettingsLock lock(path, deadline);
    WorkingCopy copy(path, deadline);
    return lock.take(reason) && copy.make(QVariantMap(), reason) && copy.write(reason) &&
           copy.put(reason) == Outcome::InPlace;
}

/// Makes a file one that QSettings can read, and reads it. False, with the reason, when that is not possible.
/// @param shared  reads the file again if it has changed for that
bool makeUsable(const QString& path, const Deadline& deadline, QByteArray& content, QString& reason,
                QSettings* shared = nullptr)
{
    if (SpareCopy(resolvedPath(path)).exists() && !SettingsLock(path, deadline).take(reason))
        logWarning(QString("The write of \"%1\" that was cut short is not finished: %2").arg(path, reason));
    if (!readFile(path, content, reason, deadline))
        return false;
    if (!holdsObjects(content))
        return true;
    if (!dropObjects(path, deadline, reason))
        return false;
    if (shared)
        shared->sync();
    return readFile(path, content, reason, deadline);
}

/// One attempt of write(). Outdated when another one has to follow. Failed without a reason when the change
/// gave up.
Outcome tryWrite(const QString& path, SharedSettings& shared, const ZelSettingsFile::Change& change,
                 Deadline& deadline, QString& reason, QString& error)
{
    SettingsLock lock(path, deadline);
    WorkingCopy copy(path, deadline);
    if (!lock.take(reason) || !copy.make(shared.held(), reason))
        return Outcome::Failed;
    const auto put = [&] { return copy.write(reason) ? copy.put(reason) : Outcome::Failed; };
    const QVariantMap before = valuesOf(copy.settings());
    if (shared.isBehind(before)) {
        // QSettings that reads a file which has lost something would forget it as well.
        if (copy.isDamaged())
            return put() == Outcome::Failed ? Outcome::Failed : Outcome::Outdated;
        lock.release();
        return shared.catchUp(reason) ? Outcome::Outdated : Outcome::Failed;
    }
    // The change may take long, or let the shared settings write, which then wait for the lock.
    lock.release();
    const bool isMade = deadline.pauseFor([&] {
        const Visible visible(copy);
        return change(copy.settings(), error);
    });
    if (!isMade) {
        reason.clear();
        return Outcome::Failed;
    }
    shared.carryOver(copy.settings());
    if (valuesOf(copy.settings()) == before && !copy.isDamaged())
        return Outcome::InPlace;
    return keepLists(copy, before, reason) && lock.take(reason) ? put() : Outcome::Failed;
}

/// ZelSettingsFile::Write() within a time.
bool write(QSettings& settings, const ZelSettingsFile::Change& change, Deadline& deadline, QString& error)
{
    const QString path = settings.fileName();
    QByteArray content;
    QString reason;
    if (WorkingCopy::Changing) {
        reason = SettingsFileText::tr("it is being written already");
        return refuseWriting(path, reason, error);
    }
    ZelSettingsFile::UseFileEncoding(settings);
    if (!makeUsable(path, deadline, content, reason, &settings))
        return refuseWriting(path, reason, error);
    SharedSettings shared(settings, deadline);
    Outcome outcome = Outcome::Outdated;
    while (outcome == Outcome::Outdated) {
        outcome = tryWrite(path, shared, change, deadline, reason, error);
        if (outcome == Outcome::Outdated && deadline.remaining() == 0) {
            reason = lockedReason();
            outcome = Outcome::Failed;
        }
    }
    const bool isWritten = outcome == Outcome::InPlace && shared.readWritten(reason);
    return isWritten || (!reason.isEmpty() && refuseWriting(path, reason, error));
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
    QByteArray content;
    QString reason;
    return makeUsable(path, Deadline(), content, reason) || refuseReading(path, reason, error);
}

bool ZelSettingsFile::IsWritable(const QString& path, QString& error)
{
    const QString reason = unwritableReason(path);
    return reason.isEmpty() || refuseWriting(path, reason, error);
}

QSettings& ZelSettingsFile::Current(QSettings& settings)
{
    const WorkingCopy* copy = WorkingCopy::Changing;
    return copy && copy->path() == settings.fileName() ? copy->settings() : settings;
}

bool ZelSettingsFile::ReadAgain(QSettings& settings, QString& error)
{
    if (!IsUsable(settings.fileName(), error))
        return false;
    settings.sync();
    UseFileEncoding(settings);
    return true;
}

bool ZelSettingsFile::Write(QSettings& settings, const Change& change, QString& error)
{
    Deadline deadline;
    return write(settings, change, deadline, error);
}

bool ZelSettingsFile::Repair(QSettings& settings, QString& error)
{
    Deadline deadline;
    const QString path = settings.fileName();
    QByteArray content;
    QString reason;
    if (!makeUsable(path, deadline, content, reason, &settings))
        return refuseReading(path, reason, error);
    settings.sync();
    UseFileEncoding(settings);

    std::map<QString, std::pair<QVariant, QString>> values; // What is stored, and what it becomes.
    bool needsWrite = !settingsDamage(content).isEmpty();
    const auto keep = [&](const auto& entry, const QVariant& stored, const QString& text) {
        values[entry.first] = {stored, text};
        needsWrite = needsWrite || needsRepair(stored, text);
    };
    if (!deadline.pauseFor([&] { return validateSettings(settings, error, keep); }))
        return false;
    const auto change = [&values](QSettings& copy, QString& failure) {
        for (const auto& [key, rule] : ZelSettingsRegistry::GetDefaultSettingsValues()) {
            const auto& [defaultValue, validator] = rule;
            auto& [known, text] = values[key];
            const QVariant stored = copy.value(key);
            if (stored != known) { // Another program has written it since.
                known = stored;
                text = stored.isValid() ? stored.toString() : defaultValue;
                if (!validator(key, defaultValue, text, failure))
                    return false;
            }
            if (needsRepair(stored, text))
                copy.setValue(key, text);
        }
        return true;
    };
    return (!needsWrite || write(settings, change, deadline, error)) && runEndChecks(settings, error);
}

} // namespace zel
