#include "SettingsWriteBack.h"

#include "SettingsLock.h"
#include "SettingsReasons.h"
#include "SettingsState.h"
#include "SettingsValues.h"
#include "SpareCopy.h"
#include "WorkingCopy.h"
#include "base/QtSettingsFile.h"

#include <QSettings>

namespace zel {

namespace {

const int ClockTick = 2000; // Milliseconds of the coarsest clock that a file system has.

/// Puts a spare copy beside a file, and gives settings what the file holds, to be written by them. False,
/// with the reason, when that is not possible.
bool prepareWriting(QSettings& settings, WorkingCopy& copy, const QString& target, const SpareCopy& spare,
                    QString& reason)
{
    const QVariantMap values = valuesOf(copy.settings());
    if (copy.mustBeWritten())
        reason = lossReason();
    if (copy.mustBeWritten() || !copy.write(reason))
        return false;
    // The time tells whether QSettings has written, also within a tick of the clock.
    setTime(target, stampOf(target).time - ClockTick);
    if (!copy.putAside(spare, reason))
        return false;
    setValues(settings, values);
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
    const bool isWritten = !(stampOf(target) == former);
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

bool writeBack(QSettings& settings, const Deadline& deadline, const QVariantMap& known, QString& reason)
{
    SettingsLock lock(settings.fileName(), deadline);
    const FileStamp former = stampOf(lock.target());
    WorkingCopy copy(lock); // What QSettings will write: a part of that shows that the file is cut.
    const SpareCopy spare(lock.target(), deadline);
    if (!lock.takeAndFinish(reason) || !copy.make(known, reason) ||
        !prepareWriting(settings, copy, lock.target(), spare, reason)) {
        stopWriting(settings);
        return false;
    }
    const QVariantMap wanted = valuesOf(settings);
    lock.release();
    const bool isWritten = letWrite(settings, lock.target(), copy.content());
    spare.giveRights();
    makeLater(lock.target(), former);
    // If another program has taken the lock, the next of us brings the file to its end. A full disk has no
    // room for a lock.
    if (lock.take(reason) == FileLock::Held || !spare.exists())
        return true;
    const bool hasLost = isPart(valuesOf(settings), wanted);
    if (hasLost && isWritten) {
        const bool isRestored = spare.restore(reason);
        lock.release();
        readAgain(settings, copy.content());
        return isRestored;
    }
    if (hasLost) { // And not written: the file still holds it all.
        setValues(settings, wanted);
        noteRead(settings, wanted);
    }
    const FileStamp present = stampOf(lock.target());
    const bool isWhole = spare.restoreIfCut(reason);
    if (!isWhole || stampOf(lock.target()).size != present.size) // QSettings takes what was cut for written.
        setUnwritten(settings, true);
    return isWhole;
}

} // namespace zel
