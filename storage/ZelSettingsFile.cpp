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
#include <QElapsedTimer>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <map>

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

/// The write of one file, which keeps others from writing it.
class Locked
{
public:
    explicit Locked(const QString& path)
        : m_path(path)
        , m_lock(path + ".lock")
    {
    }

    /// Waits for others, and ends a write that is not finished. False, with the reason, when that fails.
    /// @param givesRights  see WorkingCopy::finish()
    bool take(QString& reason, bool givesRights = false)
    {
        QDir().mkpath(QFileInfo(m_path).path());
        const FileLock::State state = m_lock.take(LockTimeout);
        if (state != FileLock::Free)
            reason = lockReason(m_path + ".lock", state == FileLock::Held);
        return state == FileLock::Free &&
               (!WorkingCopy::isUnfinished(m_path) || WorkingCopy::finish(m_path, givesRights, reason));
    }

    void release() { m_lock.release(); }

private:
    const QString m_path;
    FileLock m_lock;
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

/// Sets what a damaged, empty or cut file has lost.
void restore(const WorkingCopy& copy, const QVariantMap& held)
{
    QSettings& settings = copy.settings();
    const auto& registered = ZelSettingsRegistry::GetDefaultSettingsValues();
    const bool isCut = std::any_of(registered.begin(), registered.end(), [&](const auto& entry) {
        return held.contains(entry.first) && !settings.contains(entry.first);
    });
    if (!copy.isDamaged() && !copy.content().isEmpty() && !isCut)
        return;
    for (auto value = held.constBegin(); value != held.constEnd(); ++value)
        if (!settings.contains(value.key()))
            settings.setValue(value.key(), *value);
}

/// Puts back what the shared settings held, and lets them write it at once, so that nothing is pending. Not
/// under the lock, which they take themselves.
void rollBack(QSettings& shared, const QVariantMap& held)
{
    const QVariantMap shown = valuesOf(shared);
    if (shown == held)
        return;
    set(shared, shown, held);
    shared.sync();
}

/// Calls the change for the copy, and carries over what it has set in the shared settings. False when the
/// change gave up; the shared settings then hold what they held.
bool make(const ZelSettingsFile::Change& change, WorkingCopy& copy, QSettings& shared,
          const QVariantMap& held, bool& isCarried, QString& error)
{
    const Visible visible(copy);
    bool isMade = false;
    try {
        isMade = change(copy.settings(), error);
    } catch (...) {
        rollBack(shared, held);
        throw;
    }
    const QVariantMap shown = valuesOf(shared);
    isCarried = isCarried || shown != held;
    if (isMade)
        set(copy.settings(), held, shown);
    else
        rollBack(shared, held);
    return isMade;
}

/// The shared settings read the file again. What the change has set in them they write first, because
/// QSettings cannot forget it: a spare copy protects the file meanwhile.
bool readWritten(QSettings& shared, Locked& lock, bool isCarried, QString& reason)
{
    lock.release();
    shared.sync();
    ZelSettingsFile::UseFileEncoding(shared); // Reading the UTF-8 mark brings Qt's own codec back.
    if (!isCarried)
        return true;
    const bool isFinished = lock.take(reason, true);
    lock.release();
    shared.sync();
    return isFinished;
}

/// Drops the serialised objects of a file. False, with the reason, when that is not possible.
bool dropObjects(const QString& path, QString& reason)
{
    Locked lock(path);
    WorkingCopy copy(path);
    return lock.take(reason) && copy.make(reason) && copy.write(reason) &&
           copy.put(false, reason) == WorkingCopy::InPlace;
}

/// Makes a file one that QSettings can read. False, with the reason, when that is not possible.
/// @param shared  reads the file again if it has changed for that
bool makeUsable(const QString& path, QString& reason, QSettings* shared = nullptr)
{
    QByteArray content;
    if (WorkingCopy::isUnfinished(path) && !Locked(path).take(reason))
        logWarning(QString("The write of \"%1\" that was cut short is not finished: %2").arg(path, reason));
    if (!readFile(path, content, reason))
        return false;
    if (!holdsObjects(content))
        return true;
    const bool isDropped = dropObjects(path, reason);
    if (isDropped && shared)
        shared->sync();
    return isDropped;
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
    QString reason;
    return makeUsable(path, reason) || refuseReading(path, reason, error);
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
    const QString path = settings.fileName();
    QString reason;
    if (WorkingCopy::Changing)
        return refuseWriting(path, SettingsFileText::tr("it is being written already"), error);
    UseFileEncoding(settings);
    Locked lock(path);
    if (!makeUsable(path, reason, &settings))
        return refuseWriting(path, reason, error);
    const QVariantMap held = valuesOf(settings);
    const auto refuse = [&](const QString& why) {
        lock.release();
        rollBack(settings, held);
        return refuseWriting(path, why, error);
    };
    bool isCarried = false;
    QElapsedTimer clock;
    clock.start();
    do {
        // Gone before the lock is released for good.
        auto copy = lock.take(reason) ? std::make_unique<WorkingCopy>(path) : nullptr;
        if (!copy || !copy->make(reason))
            return refuse(reason);
        const QVariantMap before = valuesOf(copy->settings());
        restore(*copy, held);
        // The change may take long, or let the shared settings write, which then wait for the lock.
        lock.release();
        if (!make(change, *copy, settings, held, isCarried, error))
            return false;
        if (valuesOf(copy->settings()) == before && !copy->isDamaged() && !isCarried) {
            settings.sync();
            return true;
        }
        if (!lock.take(reason))
            return refuse(reason);
        const WorkingCopy::Outcome outcome =
            copy->write(reason) ? copy->put(isCarried, reason) : WorkingCopy::Failed;
        copy.reset();
        if (outcome == WorkingCopy::InPlace)
            return readWritten(settings, lock, isCarried, reason) || refuseWriting(path, reason, error);
        if (outcome == WorkingCopy::Failed)
            return refuse(reason);
        lock.release();
    } while (clock.elapsed() < LockTimeout);
    return refuse(SettingsFileText::tr("another program has locked it"));
}

bool ZelSettingsFile::Repair(QSettings& settings, QString& error)
{
    const QString path = settings.fileName();
    QByteArray content;
    QString reason;
    if (!makeUsable(path, reason, &settings) || !readFile(path, content, reason))
        return refuseReading(path, reason, error);
    settings.sync();
    UseFileEncoding(settings);

    struct Value
    {
        QVariant stored;
        QString text;
    };
    std::map<QString, Value> values;
    bool needsWrite = !settingsDamage(content).isEmpty();
    const auto keep = [&](const auto& entry, const QVariant& stored, const QString& text) {
        values[entry.first] = {stored, text};
        needsWrite = needsWrite || needsRepair(stored, text);
    };
    if (!validateSettings(settings, error, keep))
        return false;
    const auto change = [&](QSettings& copy, QString& failure) {
        bool losesList = false;
        for (const auto& [key, rule] : ZelSettingsRegistry::GetDefaultSettingsValues()) {
            const auto& [defaultValue, validator] = rule;
            const QVariant stored = copy.value(key);
            Value& value = values[key];
            if (stored != value.stored) { // Another program has written it since.
                value = {stored, stored.isValid() ? stored.toString() : defaultValue};
                if (!validator(key, defaultValue, value.text, failure))
                    return false;
            }
            if (needsRepair(value.stored, value.text)) {
                copy.setValue(key, value.text);
                losesList = losesList || isList(stored);
            }
        }
        return !losesList ||
               WorkingCopy::Changing->keepContent("it holds a list in place of a text", reason) ||
               refuseWriting(path, reason, failure);
    };
    return (!needsWrite || Write(settings, change, error)) && runEndChecks(settings, error);
}

} // namespace zel
