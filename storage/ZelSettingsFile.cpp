#include "ZelSettingsFile.h"

#include "FileAccess.h"
#include "IniCodec.h"
#include "Log.h"
#include "SettingsDamage.h"
#include "SettingsLock.h"
#include "SettingsReasons.h"
#include "SettingsValidation.h"
#include "SettingsValues.h"
#include "SharedSettings.h"
#include "WorkingCopy.h"

#include <QSettings>

#include <algorithm>
#include <map>

namespace zel {

namespace {

const int MaximumTries = 50; // Of a write, while others write the file.
const int FinishTime = 500;  // ms; for a program that may be finishing a write just now.

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
    Outcome outcome;
    do {
        SettingsLock lock(path, deadline);
        WorkingCopy copy(lock);
        const bool isMade =
            lock.takeAndFinish(reason) && copy.make(QVariantMap(), reason) && copy.write(reason);
        outcome = isMade ? copy.put(reason) : Outcome::Failed;
    } while (outcome == Outcome::Outdated && deadline.remaining() > 0);
    return outcome == Outcome::InPlace;
}

/// Makes a file one that QSettings can read, and reads it. False, with the reason, when that is not possible.
/// @param hadObjects  set when serialised objects were dropped from it for that
bool makeUsable(const QString& path, const Deadline& deadline, QByteArray& content, bool& hadObjects,
                QString& reason)
{
    if (!finishKilledWrite(path, Deadline(FinishTime), reason))
        logWarning(QString("The write of \"%1\" that was cut short is not finished: %2").arg(path, reason));
    if (!readFile(path, content, reason, deadline))
        return false;
    hadObjects = holdsObjects(content);
    return !hadObjects || (dropObjects(path, deadline, reason) && readFile(path, content, reason, deadline));
}

/// The same for settings. If it fails, they write nothing before the next write.
bool makeUsable(QSettings& settings, const Deadline& deadline, QByteArray& content, QString& reason)
{
    bool hadObjects = false;
    const bool isUsable = makeUsable(settings.fileName(), deadline, content, hadObjects, reason);
    if (!isUsable)
        stopWriting(settings);
    else if (hadObjects && !hasPending(settings))
        readAgain(settings, content);
    return isUsable;
}

/// One attempt of write(); another one has to follow when it is outdated.
Outcome tryWrite(const QString& path, SharedSettings& shared, const ZelSettingsFile::Change& change,
                 Deadline& deadline, QString& reason, QString& error)
{
    SettingsLock lock(path, deadline);
    WorkingCopy copy(lock);
    if (!lock.takeAndFinish(reason) || !copy.make(shared.known(), reason))
        return Outcome::Failed;
    const QVariantMap before = valuesOf(copy.settings());
    shared.learn(before);
    if (!shared.carryPending(copy, reason))
        return Outcome::Failed;
    // The change may take long, or let the shared settings write, which then wait for the lock.
    lock.release();
    const bool isMade = deadline.pauseFor([&] {
        const WorkingCopy::ChangeScope scope(copy);
        return change(copy.settings(), error);
    });
    if (!isMade)
        return Outcome::GivenUp;
    shared.carryOver(copy.settings());
    const QVariantMap after = valuesOf(copy.settings());
    Outcome outcome = Outcome::InPlace;
    if (!isSame(after, before) || copy.mustBeWritten())
        outcome = keepLists(copy, before, reason) && lock.takeAndFinish(reason) && copy.write(reason)
                      ? copy.put(reason)
                      : Outcome::Failed;
    lock.release();
    if (outcome == Outcome::InPlace && !shared.readWritten(copy.content(), reason))
        return Outcome::Failed;
    return outcome;
}

/// ZelSettingsFile::Write() within a time.
bool write(QSettings& settings, const ZelSettingsFile::Change& change, Deadline& deadline, QString& error)
{
    const QString path = settings.fileName();
    QByteArray content;
    QString reason;
    if (WorkingCopy::changing())
        reason = SettingsFileText::tr("it is being written already");
    else if (!settings.group().isEmpty()) // The values outside it cannot be reached.
        reason = SettingsFileText::tr("a group of it is open");
    if (!reason.isEmpty())
        return refuseWriting(path, reason, error);
    ZelSettingsFile::UseFileEncoding(settings);
    if (!makeUsable(settings, deadline, content, reason))
        return refuseWriting(path, reason, error);
    SharedSettings shared(settings, deadline);
    int tries = 0;
    Outcome outcome;
    do
        outcome = tryWrite(path, shared, change, deadline, reason, error);
    while (outcome == Outcome::Outdated && ++tries < MaximumTries && deadline.remaining() > 0);
    if (outcome == Outcome::InPlace)
        return true;
    QString unwritten;
    if (!shared.giveBack(unwritten))
        logWarning(QString("What a change has set in \"%1\" is still pending: %2").arg(path, unwritten));
    return outcome != Outcome::GivenUp && refuseWriting(path, reason, error);
}

bool changeNothing(QSettings&, QString&)
{
    return true;
}

/// ZelSettingsFile::ReadAgain() of a usable file within a time.
bool readSafely(QSettings& settings, const QByteArray& content, Deadline& deadline, QString& error)
{
    const bool isLost = content.isEmpty() && !settings.allKeys().isEmpty();
    if (isLost || hasPending(settings))
        return write(settings, &changeNothing, deadline, error);
    readAgain(settings, content);
    return true;
}

/// Settings that write with protection what they could not write before, as QSettings would without it.
class ProtectedSettings : public QSettings
{
public:
    explicit ProtectedSettings(const QString& path)
        : QSettings(path, QSettings::IniFormat)
    {
    }

    ~ProtectedSettings() override
    {
        QString ignored;
        leaveGroups(*this);
        if (hasUnwritten(*this))
            ZelSettingsFile::Write(*this, &changeNothing, ignored);
    }
};

} // namespace

std::unique_ptr<QSettings> ZelSettingsFile::Open(const QString& path)
{
    QByteArray content;
    QString ignored;
    const bool mayBeDecoded = readFile(path, content, ignored) && !holdsObjects(content);
    auto settings = std::make_unique<ProtectedSettings>(path);
    UseFileEncoding(*settings);
    if (mayBeDecoded)
        noteRead(*settings, valuesOf(*settings), content);
    return settings;
}

void ZelSettingsFile::UseFileEncoding(QSettings& settings)
{
    settings.setIniCodec(&iniCodec());
}

bool ZelSettingsFile::IsUsable(const QString& path, QString& error)
{
    QByteArray content;
    bool hadObjects = false;
    QString reason;
    return makeUsable(path, Deadline(), content, hadObjects, reason) || refuseReading(path, reason, error);
}

bool ZelSettingsFile::IsWritable(const QString& path, QString& error)
{
    const QString reason = unwritableReason(path);
    return reason.isEmpty() || refuseWriting(path, reason, error);
}

QSettings& ZelSettingsFile::Current(QSettings& settings)
{
    const WorkingCopy* copy = WorkingCopy::changing();
    return copy && copy->path() == settings.fileName() ? copy->settings() : settings;
}

bool ZelSettingsFile::ReadAgain(QSettings& settings, QString& error)
{
    if (WorkingCopy::changing())
        return true;
    Deadline deadline;
    QByteArray content;
    QString reason;
    return makeUsable(settings, deadline, content, reason)
               ? readSafely(settings, content, deadline, error)
               : refuseReading(settings.fileName(), reason, error);
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
    QString reason, ignored;
    if (!makeUsable(settings, deadline, content, reason))
        return refuseReading(path, reason, error);
    const bool isRead = readSafely(settings, content, deadline, ignored);

    std::map<QString, std::pair<QVariant, QString>> values; // What is stored, and what it becomes.
    bool needsWrite = !settingsDamage(content).isEmpty() || (content.isEmpty() && !isRead);
    const auto keep = [&](const auto& entry, const QVariant& stored, const QString& text) {
        values.emplace_hint(values.end(), entry.first, std::make_pair(stored, text)); // They come in order.
        needsWrite = needsWrite || needsRepair(stored, text);
    };
    const auto change = [&values](QSettings& copy, QString& failure) {
        for (const auto& entry : ZelSettingsRegistry::GetDefaultSettingsValues()) {
            auto& [stored, text] = values[entry.first];
            // Another program may have written it since.
            if (copy.value(entry.first) != stored && !validateKey(copy, entry, stored, text, failure))
                return false;
            if (needsRepair(stored, text))
                copy.setValue(entry.first, text);
        }
        return true;
    };
    if (!deadline.pauseFor([&] { return validateSettings(settings, error, keep); }) ||
        (needsWrite && !write(settings, change, deadline, error))) {
        if (error.isEmpty())
            refuseWriting(path, InvalidDefault, error);
        return false;
    }
    if (!deadline.pauseFor([&] { return runEndChecks(settings, error); }))
        return false;
    if (hasPending(settings)) // An end check has set values.
        write(settings, &changeNothing, deadline, ignored);
    return true;
}

} // namespace zel
