#include "SharedSettings.h"

#include "FileAccess.h"
#include "SettingsLock.h"
#include "SettingsValues.h"
#include "SpareCopy.h"
#include "WorkingCopy.h"
#include "ZelSettingsFile.h"
#include "base/SystemFiles.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSettings>

namespace zel {

namespace {

// Properties of settings: true when they hold values that they could not write, the values that they held
// when they had read the file, and the content of the file then.
const char* const UnwrittenProperty = "zelUnwritten";
const char* const ReadProperty = "zelRead";
const char* const ContentProperty = "zelContent";

const int ClockTick = 2000; // Milliseconds of the coarsest clock that a file system has.

/// Finds out whether settings are about to write: they have posted an event to themselves.
class PendingProbe : public QObject
{
public:
    bool isFound = false;

    bool eventFilter(QObject*, QEvent*) override
    {
        isFound = true;
        return true;
    }
};

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

/// The values that are the same in both.
QVariantMap common(const QVariantMap& first, const QVariantMap& second)
{
    QVariantMap same;
    for (auto value = first.constBegin(); value != first.constEnd(); ++value)
        if (second.contains(value.key()) && isSame(*value, second.value(value.key())))
            same.insert(value.key(), *value);
    return same;
}

/// Adds the values whose keys are missing.
void addMissing(QVariantMap& values, const QVariantMap& others)
{
    for (auto value = others.constBegin(); value != others.constEnd(); ++value)
        if (!values.contains(value.key()))
            values.insert(value.key(), *value);
}

/// What settings hold after others: what is missing has been removed, unless their read has failed.
QVariantMap withoutLoss(QVariantMap values, const QVariantMap& former)
{
    if (lacksRegistered(values, former))
        addMissing(values, former);
    return values;
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
    settings.setProperty(UnwrittenProperty, !isWritten);
    return isWritten;
}

/// True when settings have lost values and changed none: a read of QSettings has failed, and it has written
/// the rest. Others write more than that.
bool isPart(const QVariantMap& left, const QVariantMap& former)
{
    return left.size() < former.size() && common(left, former).size() == left.size();
}

} // namespace

void leaveGroups(QSettings& settings)
{
    while (!settings.group().isEmpty())
        settings.endGroup();
}

bool hasUnwritten(const QSettings& settings)
{
    return settings.property(UnwrittenProperty).toBool();
}

bool hasPending(QSettings& settings)
{
    PendingProbe probe;
    settings.installEventFilter(&probe);
    QCoreApplication::sendPostedEvents(&settings, QEvent::UpdateRequest);
    if (probe.isFound) // Without it they would never post one again.
        QCoreApplication::postEvent(&settings, new QEvent(QEvent::UpdateRequest));
    return probe.isFound || hasUnwritten(settings);
}

void stopWriting(QSettings& settings)
{
    if (!hasPending(settings))
        return;
    QCoreApplication::removePostedEvents(&settings, QEvent::UpdateRequest);
    settings.setProperty(UnwrittenProperty, true);
}

void noteRead(QSettings& settings, const QByteArray& content)
{
    settings.setProperty(ReadProperty, valuesOf(settings));
    settings.setProperty(ContentProperty, content);
}

void readAgain(QSettings& settings, const QByteArray& content)
{
    // Not sync(), after which QSettings of Qt 4 posts no event any more.
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&settings, &update);
    QCoreApplication::removePostedEvents(&settings, QEvent::UpdateRequest); // It would count as pending.
    ZelSettingsFile::UseFileEncoding(settings); // Reading the UTF-8 mark brings Qt's own codec back.
    noteRead(settings, content);
}

SharedSettings::SharedSettings(QSettings& settings, const Deadline& deadline)
    : m_settings(settings)
    , m_held(valuesOf(settings))
    , m_known(m_held)
    , m_hasPending(hasPending(settings))
    , m_deadline(deadline)
    , m_isWritten(false)
{
}

SharedSettings::~SharedSettings()
{
    leaveGroups(m_settings);
    if (m_isWritten || (!m_hasPending && !hasPending(m_settings)))
        return;
    set(m_settings, m_held);
    QString ignored;
    if (m_hasPending)
        stopWriting(m_settings);
    else if (!writePending(m_known, ignored)) // Then the next write gives them what the file holds.
        m_settings.setProperty(ReadProperty, m_held);
}

void SharedSettings::carryPending(WorkingCopy& copy) const
{
    if (!m_hasPending)
        return;
    // Where they have not been read by us, a value that others have changed since cannot be told from one
    // that was set here.
    const QVariant read = m_settings.property(ReadProperty);
    QVariantMap former, present = m_held;
    if (read.isValid() && copy.parse(m_settings.property(ContentProperty).toByteArray(), former)) {
        former = common(read.toMap(), former);
        present = withoutLoss(present, former);
    } else {
        former = valuesOf(copy.settings());
        addMissing(present, former);
    }
    change(copy.settings(), former, present);
}

void SharedSettings::learn(const QVariantMap& values)
{
    for (auto value = values.constBegin(); value != values.constEnd(); ++value)
        m_known.insert(value.key(), *value);
}

void SharedSettings::carryOver(QSettings& copy)
{
    leaveGroups(m_settings);
    leaveGroups(copy);
    change(copy, m_held, withoutLoss(valuesOf(m_settings), m_held));
}

bool SharedSettings::readWritten(const QByteArray& content, QString& reason)
{
    m_isWritten = true;
    if (m_hasPending || hasPending(m_settings))
        return writePending(QVariantMap(), reason) ||
               !SpareCopy(resolvedPath(m_settings.fileName()), m_deadline).exists();
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
    // If another program has taken the lock, the next of us brings the file to its end. A full disk has no
    // room for a lock.
    if (lock.take(reason) == FileLock::Held || !spare.exists())
        return true;
    if (isWritten && isPart(valuesOf(m_settings), wanted)) {
        const bool isRestored = spare.restore(reason);
        lock.release();
        readAgain(m_settings, copy.content());
        return isRestored;
    }
    const FileStamp present = stampOf(lock.target());
    const bool isWhole = spare.restoreIfCut(reason);
    if (!isWhole || stampOf(lock.target()).size != present.size) // QSettings takes what was cut for written.
        m_settings.setProperty(UnwrittenProperty, true);
    return isWhole;
}

} // namespace zel
