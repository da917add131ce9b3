#include "SharedSettings.h"

#include "SettingsLock.h"
#include "SettingsValues.h"
#include "SpareCopy.h"
#include "WorkingCopy.h"
#include "base/SystemFiles.h"

#include <QSettings>

namespace zel {

namespace {

const int ClockTick = 2000; // Milliseconds of the coarsest clock that a file system has.

/// Makes settings hold these values, and no others.
void set(QSettings& settings, const QVariantMap& wanted)
{
    const QVariantMap present = valuesOf(settings);
    for (auto value = present.constBegin(); value != present.constEnd(); ++value)
        if (!wanted.contains(value.key()))
            settings.remove(value.key());
    const QVariantMap left = valuesOf(settings); // A group goes with the key of its name.
    for (auto value = wanted.constBegin(); value != wanted.constEnd(); ++value) {
        // A float equals its text, but QSettings would serialise it.
        const QVariant held = left.value(value.key());
        if (!left.contains(value.key()) || held.userType() != value->userType() || !isSame(held, *value))
            settings.setValue(value.key(), *value);
    }
}

/// Makes the same changes in settings that lead from some values to others.
void change(QSettings& settings, const QVariantMap& from, const QVariantMap& to)
{
    if (isSame(from, to))
        return;
    QVariantMap wanted = valuesOf(settings);
    for (auto value = from.constBegin(); value != from.constEnd(); ++value)
        if (!to.contains(value.key()))
            wanted.remove(value.key());
    for (auto value = to.constBegin(); value != to.constEnd(); ++value)
        if (!from.contains(value.key()) || !isSame(from.value(value.key()), *value))
            wanted.insert(value.key(), *value);
    set(settings, wanted);
}

/// What settings hold after others: what is missing has been removed, unless their read has failed.
QVariantMap withoutLoss(const QVariantMap& values, const QVariantMap& former)
{
    return lacksRegistered(values, former) ? united(values, former) : values;
}

/// Puts a spare copy beside a file, and gives settings what the file holds, to be written by them. False
/// when that is not possible; the reason is set unless the file has lost what they held.
bool prepareWriting(QSettings& settings, WorkingCopy& copy, const QString& target, const SpareCopy& spare,
                    QString& reason)
{
    const QVariantMap values = valuesOf(copy.settings());
    if (copy.mustBeWritten() || !copy.write(reason))
        return false;
    // The time tells whether QSettings has written, also within a tick of the clock.
    setTime(target, stampOf(target).time - ClockTick);
    if (!copy.putAside(spare, reason))
        return false;
    set(settings, values);
    if (!values.isEmpty()) // So that it is known whether QSettings has written.
        settings.setValue(values.begin().key(), values.begin().value());
    return true;
}

/// Lets settings write what is pending. False when the file is as before: QSettings does not tell of every
/// failure.
/// @param content  what the file then holds, without objects
bool letWrite(QSettings& settings, const QString& target, const QByteArray& content)
{
    const FileStamp former = stampOf(target);
    readAgain(settings, content);
    const FileStamp present = stampOf(target);
    const bool isWritten = present.size != former.size || present.time != former.time;
    setUnwritten(settings, !isWritten);
    return isWritten;
}

/// True when settings have lost values and changed none: a read of QSettings has failed, and it has written
/// the rest. Others write more than that.
bool isPart(const QVariantMap& left, const QVariantMap& former)
{
    return left.size() < former.size() && common(left, former).size() == left.size();
}

} // namespace

SharedSettings::SharedSettings(QSettings& settings, const Deadline& deadline)
    : m_settings(settings)
    , m_held(valuesOf(settings))
    , m_hasPending(hasPending(settings))
    , m_lastRead(lastRead(settings))
    , m_known(m_held)
    , m_deadline(deadline)
    , m_isWritten(false)
{
    if (!m_hasPending)
        m_former = m_held;
}

SharedSettings::~SharedSettings()
{
    leaveGroups(m_settings);
    if (m_isWritten)
        return;
    const QVariantMap read = common(valuesOf(m_settings), m_stored); // By a sync() of the change, too.
    if (m_former.isValid())
        noteRead(m_settings, united(read, m_former.toMap()));
    if (!m_hasPending && !hasPending(m_settings))
        return;
    set(m_settings, united(read, m_held));
    QString ignored;
    if (m_hasPending)
        stopWriting(m_settings);
    else
        writePending(m_known, ignored);
}

bool SharedSettings::carryPending(WorkingCopy& copy, QString& reason)
{
    if (!m_hasPending)
        return true;
    if (!m_lastRead.values.isValid()) {
        // A value that others have changed since they were read cannot be told from one that was set here.
        change(copy.settings(), m_stored, united(m_held, m_stored));
        return true;
    }
    QVariantMap former = m_lastRead.values.toMap(), stored;
    if (m_lastRead.content.isValid()) {
        if (!copy.parse(m_lastRead.content.toByteArray(), stored, reason))
            return false;
        former = common(former, stored);
    }
    change(copy.settings(), former, withoutLoss(m_held, former));
    m_former = former;
    return true;
}

void SharedSettings::learn(const QVariantMap& values)
{
    m_stored = values;
    m_known = united(values, m_known);
}

void SharedSettings::carryOver(QSettings& copy)
{
    leaveGroups(m_settings);
    leaveGroups(copy);
    QVariantMap former = m_held, present = withoutLoss(valuesOf(m_settings), m_held);
    for (const QString& key : common(present, m_stored).keys()) { // Perhaps read, by a sync() of the change.
        former.remove(key);
        present.remove(key);
    }
    change(copy, former, present);
}

bool SharedSettings::readWritten(const QByteArray& content, QString& reason)
{
    m_isWritten = true;
    if (m_hasPending || hasPending(m_settings)) {
        noteRead(m_settings, valuesOf(m_settings)); // All that was set here is in the file.
        return writePending(QVariantMap(), reason) ||
               finishKilledWrite(m_settings.fileName(), m_deadline, reason);
    }
    readAgain(m_settings, content);
    return true;
}

/// Gives them what the file holds, and lets them write it, so that nothing is pending. QSettings may cut the
/// file all the same, and that of Qt 5 changes its rights, so a spare copy stands beside it meanwhile. False,
/// with the reason, when they have not written, as when the file has lost what they held. There is still a
/// spare copy then if they have cut the file.
bool SharedSettings::writePending(const QVariantMap& known, QString& reason)
{
    SettingsLock lock(m_settings.fileName(), m_deadline);
    const FileStamp former = stampOf(lock.target());
    WorkingCopy copy(lock); // What QSettings will write: a part of that shows that the file is cut.
    const SpareCopy spare(lock.target(), m_deadline);
    if (!lock.takeAndFinish(reason) || !copy.make(known, reason) ||
        !prepareWriting(m_settings, copy, lock.target(), spare, reason)) {
        stopWriting(m_settings);
        return false;
    }
    const QVariantMap wanted = valuesOf(m_settings);
    lock.release();
    const bool isWritten = letWrite(m_settings, lock.target(), copy.content());
    spare.giveRights();
    makeLater(lock.target(), former);
    // If another program has taken the lock, the next of us brings the file to its end. A full disk has no
    // room for a lock.
    if (lock.take(reason) == FileLock::Held || !spare.exists())
        return true;
    const bool hasLost = isPart(valuesOf(m_settings), wanted);
    if (hasLost && isWritten) {
        const bool isRestored = spare.restore(reason);
        lock.release();
        readAgain(m_settings, copy.content());
        return isRestored;
    }
    if (hasLost) { // And not written: the file still holds it all.
        set(m_settings, wanted);
        noteRead(m_settings, wanted);
    }
    const FileStamp present = stampOf(lock.target());
    const bool isWhole = spare.restoreIfCut(reason);
    if (!isWhole || stampOf(lock.target()).size != present.size) // QSettings takes what was cut for written.
        setUnwritten(m_settings, true);
    return isWhole;
}

} // namespace zel
