#ifndef ZEL_SETTINGSREASONS_H
#define ZEL_SETTINGSREASONS_H

#include <QCoreApplication>
#include <QString>

namespace zel {

class FileLock;

/// Translates why a settings file cannot be read or written.
struct SettingsFileText
{
    Q_DECLARE_TR_FUNCTIONS(ZelControlCenter)
};

/// @{
/// Make the error of a file that cannot be read or written, and log it. Always false, for the caller to
/// return.
bool refuseReading(const QString& path, const QString& reason, QString& error);
bool refuseWriting(const QString& path, const QString& reason, QString& error);
/// @}

/// The reason when another program keeps a file locked, or writes it again and again.
QString lockedReason();

/// What it means for the user when a lock file cannot be taken.
QString untakenLockReason(const FileLock& lock, bool isHeld);

/// The reason when the rights of a file cannot be given to a new one.
QString foreignReason();

/// The reason when QSettings has not kept what was set.
QString lossReason();

} // namespace zel

#endif
