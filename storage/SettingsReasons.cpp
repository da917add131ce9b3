#include "SettingsReasons.h"

#include "Log.h"
#include "base/FileLock.h"
#include "base/SystemFiles.h"

#include <QFileInfo>

namespace zel {

namespace {

bool fail(const QString& text, const QString& path, const QString& reason, QString& error)
{
    error = text.arg(path, reason);
    logError(error);
    return false;
}

} // namespace

bool refuseReading(const QString& path, const QString& reason, QString& error)
{
    return fail(SettingsFileText::tr("Could not read the Torvane settings file \"%1\": %2"), path, reason,
                error);
}

bool refuseWriting(const QString& path, const QString& reason, QString& error)
{
    return fail(SettingsFileText::tr("Could not write the Torvane settings file \"%1\": %2"), path, reason,
                error);
}

QString lockedReason()
{
    return SettingsFileText::tr("another program has locked it");
}

QString untakenLockReason(const FileLock& lock, bool isHeld)
{
    if (isHeld)
        return lockedReason();
    const QString error = systemError(); // Before it is lost.
    const QFileInfo file(lock.path());
    return file.exists() || file.isSymLink()
               ? SettingsFileText::tr("\"%1\" is in the way, which no program uses: remove it")
                     .arg(lock.path())
               : error;
}

QString foreignReason()
{
    return SettingsFileText::tr("it belongs to another user, who would lose it");
}

QString lossReason()
{
    return SettingsFileText::tr("not all values can be kept in it");
}

} // namespace zel
