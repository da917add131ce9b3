#include "SharedSettings.h"

#include "FileAccess.h"
#include "SettingsLock.h"
#include "SpareCopy.h"
#include "WorkingCopy.h"
#include "ZelSettingsFile.h"

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

SharedSettings::SharedSettings(QSettings& settings, const Deadline& deadline)
    : m_settings(settings)
    , m_held(valuesOf(settings))
    , m_hasPending(PendingProbe::finds(settings))
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
    readAgain();
    return true;
}

void SharedSettings::readAgain()
{
    m_settings.sync();
    ZelSettingsFile::UseFileEncoding(m_settings); // Reading the UTF-8 mark brings Qt's own codec back.
}

/// Lets them write, so that nothing is pending. QSettings of Qt 4 may cut the file, and that of Qt 5 changes
/// its rights, so a spare copy stands beside it meanwhile. False, with the reason, when they have not
/// written, or when the spare copy is still needed.
bool SharedSettings::writePending(QString& reason)
{
    SettingsLock lock(m_settings.fileName(), m_deadline);
    const SpareCopy spare(lock.target());
    const bool isSafe = lock.take(reason) && (!exists(lock.target()) || spare.make(reason));
    m_settings.setProperty(UnwrittenProperty, !isSafe);
    if (!isSafe) { // They would wait without end, or write without protection.
        QCoreApplication::removePostedEvents(&m_settings, QEvent::UpdateRequest);
        return false;
    }
    lock.release();
    readAgain();
    spare.giveRights();
    // Whoever else holds it now has to bring the file to its end.
    return !lock.wait(reason) || !spare.exists() || spare.finish(m_deadline, reason);
}

} // namespace zel
