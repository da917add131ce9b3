#ifndef ZEL_FILEACCESS_H
#define ZEL_FILEACCESS_H

#include <QByteArray>
#include <QCoreApplication>
#include <QFileInfo>
#include <QString>

#include <filesystem>

namespace zel {

/// Translates what is told of the settings file.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ZelControlCenter)
};

void logWarning(const QString& text);

/// Sets the error text and logs it; false, for the caller to return.
bool fail(const QString& text, QString& error);

std::filesystem::path nativePath(const QString& path);

/// The file that a link leads to, which may not exist; the file itself if it is no link.
QFileInfo fileBehind(const QString& path);

/// All of a file; empty when it cannot be read.
QByteArray contentOfFile(const QString& path);

/// Why a settings file cannot be read; empty when it can be, or does not exist yet.
QString unreadableReason(const QString& path);

/// Why a settings file cannot be written, as far as that can be known without trying; empty when no reason
/// is known.
QString unwritableReason(const QString& path);

/// Why there is no room for a settings file of so many bytes beside the present one; empty when there is.
QString roomReason(const QString& path, qint64 size);

/// Why writing has failed: what the system says when it is tried again, in a new file beside this one.
QString probeWriteError(const QString& path);

/// Sets the error text that a settings file could not be written; false, for the caller to return.
bool refuseWriting(const QString& path, const QString& reason, QString& error);

/// Copies a settings file. False, with a translated text, when that is not possible.
bool copySettingsFile(const QString& path, const QString& copy, QString& error);

} // namespace zel

#endif
