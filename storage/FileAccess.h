#ifndef ZEL_FILEACCESS_H
#define ZEL_FILEACCESS_H

#include <QCoreApplication>
#include <QString>

namespace zel {

/// Translates the error texts of the settings file.
struct SettingsFileText
{
    Q_DECLARE_TR_FUNCTIONS(ZelControlCenter)
};

/// Writes a warning to the log.
void logWarning(const QString& text);

/// Makes the error of a text with %1 for the path and %2 for the reason, and logs it. Always false, for the
/// caller to return.
bool failWith(const QString& text, const QString& path, const QString& reason, QString& error);

/// Why a settings file cannot be read; empty when it can be, or does not exist yet.
QString unreadableReason(const QString& path);

/// Why a settings file cannot be written, as far as that is known without writing; empty when no reason is
/// known.
QString unwritableReason(const QString& path);

/// Makes a lock whose process has died so old that QSettings removes it, for which it would wait otherwise.
/// It is not removed here, because by now it may be another program's.
void ageStaleLock(const QString& path);

/// Why a write has failed: writes a temporary file beside the settings file and returns the system's error.
QString probeWriteError(const QString& path);

/// Copies a settings file. False, with a translated text, when that is not possible.
bool copySettingsFile(const QString& path, const QString& copy, QString& error);

} // namespace zel

#endif
