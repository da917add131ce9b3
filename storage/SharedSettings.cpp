#include "SharedSettings.h"

#include "SettingsValues.h"
#include "SettingsWriteBack.h"
#include "SpareCopy.h"
#include "WorkingCopy.h"

#include <QSettings>

namespace zel {

namespace {

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
    setValues(settings, wanted);
}

/// What settings hold after others: what is missing has been removed, unless their read has failed.
QVariantMap withoutLoss(const QVariantMap& values, const QVariantMap& former)
{
    return lacksRegistered(values, former) ? united(values, former) : values;
}

} // namespace

SharedSettings::SharedSettings(QSettings& settings, const Deadline& deadline)
    : m_settings(settings)
    , m_held(valuesOf(settings))
    , m_hasPending(hasPending(settings))
    , m_lastRead(lastRead(settings))
    , m_known(m_held)
    , m_deadline(deadline)
    , m_isDone(false)
{
    if (!m_hasPending)
        m_former = m_held;
}

SharedSettings::~SharedSettings()
{
    if (!m_isDone && holdFormer())
        stopWriting(m_settings);
}

bool SharedSettings::holdFormer()
{
    m_isDone = true;
    leaveGroups(m_settings);
    const QVariantMap read = common(valuesOf(m_settings), m_stored); // By a sync() of the change, too.
    if (m_former)
        noteRead(m_settings, united(read, *m_former));
    if (!m_hasPending && !hasPending(m_settings))
        return false;
    setValues(m_settings, united(read, m_held));
    return true;
}

bool SharedSettings::giveBack(QString& reason)
{
    if (m_isDone || !holdFormer())
        return true;
    if (!m_hasPending)
        return writeBack(m_settings, m_deadline, m_known, reason);
    stopWriting(m_settings);
    return true;
}

bool SharedSettings::carryPending(WorkingCopy& copy, QString& reason)
{
    if (!m_hasPending)
        return true;
    if (!m_lastRead.values) {
        // A value that others have changed since they were read cannot be told from one that was set here.
        change(copy.settings(), m_stored, united(m_held, m_stored));
        return true;
    }
    QVariantMap former = *m_lastRead.values, stored;
    if (m_lastRead.content) {
        if (!copy.parse(*m_lastRead.content, stored, reason))
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
    m_isDone = true;
    if (m_hasPending || hasPending(m_settings)) {
        noteRead(m_settings, valuesOf(m_settings)); // All that was set here is in the file.
        return writeBack(m_settings, m_deadline, QVariantMap(), reason) ||
               finishKilledWrite(m_settings.fileName(), m_deadline, reason);
    }
    readAgain(m_settings, content);
    return true;
}

} // namespace zel
