#include "SharedSettings.h"

#include "FileAccess.h"
#include "SettingsLock.h"
#include "SpareCopy.h"
#include "WorkingCopy.h"
#include "ZelSettingsFile.h"
#include "base/SystemFiles.h"

#include <QCoreApplication>
#include <QEvent>
#include <QSettings>

namespace zel {

namespace {

/// Set in settings that hold values which they could not write.
const char* const UnwrittenProperty = "zelUnwritten";

/// Finds out whether settings are about to write: they have posted an event to themselves.
class PendingProbe : public QObject
{
public:
    bool isFound = false;

    bool eventFilter(QObject*, QEvent* event) override
    {
        isFound = isFound || event->type() == QEvent::UpdateRequest;
        return true;
    }
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

} // namespace

bool hasPending(QSettings& settings)
{
    PendingProbe probe;
    settings.installEventFilter(&probe);
    QCoreApplication::sendPostedEvents(&settings, QEvent::UpdateRequest);
    settings.removeEventFilter(&probe);
    if (probe.isFound) // Without it they would never post one again.
        QCoreApplication::postEvent(&settings, new QEvent(QEvent::UpdateRequest));
    return probe.isFound || settings.property(UnwrittenProperty).toBool();
}

void readAgain(QSettings& settings)
{
    settings.sync();
    ZelSettingsFile::UseFileEncoding(settings); // Reading the UTF-8 mark brings Qt's own codec back.
}

SharedSettings::SharedSettings(QSettings& settings, const Deadline& deadline)
    : m_settings(settings)
    , m_held(valuesOf(settings))
    , m_hasPending(hasPending(settings))
    , m_deadline(deadline)
    , m_isCaughtUp(false)
    , m_isWritten(false)
{
}

SharedSettings::~SharedSettings()
{
    const QVariantMap shown = valuesOf(m_settings);
    if (m_isWritten || shown == m_held)
        return;
    set(m_settings, shown, m_held);
    QString ignored;
    writePending(ignored);
}

bool SharedSettings::catchUp(QString& reason)
{
    m_isCaughtUp = writePending(reason);
    m_held = valuesOf(m_settings);
    return m_isCaughtUp;
}

void SharedSettings::carryOver(QSettings& copy) const
{
    set(copy, m_held, valuesOf(m_settings));
}

bool SharedSettings::readWritten(QString& reason)
{
    m_isWritten = true;
    if (valuesOf(m_settings) != m_held)
        return writePending(reason) || !SpareCopy(resolvedPath(m_settings.fileName())).exists();
    readAgain(m_settings);
    return true;
}

/// They would wait without end, or write without protection.
void SharedSettings::stopWriting()
{
    QCoreApplication::removePostedEvents(&m_settings, QEvent::UpdateRequest);
    m_settings.setProperty(UnwrittenProperty, true);
}

/// Lets them write, so that nothing is pending. QSettings of Qt 4 may cut the file, and that of Qt 5 changes
/// its rights, so a spare copy stands beside it meanwhile. False, with the reason, when the file does not
/// have the values. There is still a spare copy then if the file is not whole.
bool SharedSettings::writePending(QString& reason)
{
    SettingsLock lock(m_settings.fileName(), m_deadline);
    const SpareCopy spare(lock.target());
    const bool isSafe = lock.take(reason) && (!exists(lock.target()) || spare.make(reason));
    if (!isSafe) {
        stopWriting();
        return false;
    }
    m_settings.setProperty(UnwrittenProperty, false);
    const FileStamp former = stampOf(lock.target());
    lock.release();
    readAgain(m_settings);
    spare.giveRights();
    // Whoever else holds it now has to bring the file to its end. A full disk has no room for it.
    if (lock.wait(reason) == FileLock::Held || !spare.exists())
        return true;
    const FileStamp present = stampOf(lock.target());
    WorkingCopy copy(lock);
    QString ignored;
    // QSettings may take an old content for the present one. Then it has written nothing.
    const bool isOld = present.size == former.size && present.time == former.time;
    if (isOld || (copy.make(QVariantMap(), ignored) && textsOf(copy.settings()) == textsOf(m_settings))) {
        spare.remove();
        return true;
    }
    reason = SettingsFileText::tr("not all values can be kept in it");
    if (spare.restore(m_deadline, ignored)) {
        // QSettings takes them for written.
        const QVariantMap held = valuesOf(m_settings);
        readAgain(m_settings);
        QVariantMap wanted = valuesOf(m_settings);
        const QVariantMap stored = wanted;
        for (auto value = held.constBegin(); value != held.constEnd(); ++value)
            wanted.insert(value.key(), *value);
        set(m_settings, stored, wanted);
        stopWriting();
    }
    return false;
}

} // namespace zel
