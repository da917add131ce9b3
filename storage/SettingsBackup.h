#ifndef ZEL_SETTINGSBACKUP_H
#define ZEL_SETTINGSBACKUP_H

#include <QString>
#include <QStringList>

namespace zel {

/// Keeps a dated copy of a settings file beside it, "Settings.ini.2024-05-31T18-04-09.123Z.bak", before its
/// content is replaced, and names it in the log. The last three copies are kept. An empty file, or a content
/// that a copy already has, is not copied. False, with a translated text, when the copy cannot be made: then
/// leave the file as it is.
/// @param reason  why the content is replaced, as in "it is too old"
/// @param source  the file that holds the content, where it is not the settings file itself
bool keepBackup(const QString& path, const QString& reason, QString& error,
                const QString& source = QString());

/// The dated copies of a settings file, the oldest first.
QStringList backupsOf(const QString& path);

} // namespace zel

#endif
