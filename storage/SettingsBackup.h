#ifndef ZEL_SETTINGSBACKUP_H
#define ZEL_SETTINGSBACKUP_H

#include <QString>
#include <QStringList>

namespace zel {

/// Keeps a dated copy of a settings file beside it, "Settings.ini.2024-05-31T18-04-09.123Z.bak", before its
/// content is given up, and names it in the log. The last three stay. An empty content needs no copy, and one
/// that a copy has already gets no second. False, with a translated text, when the copy cannot be made: the
/// file should then stay as it is.
/// @param reason  why the content is given up, as in "it is too old"
/// @param source  the file that holds the content, where it is not the settings file itself
bool keepBackup(const QString& path, const QString& reason, QString& error,
                const QString& source = QString());

/// The dated copies of a settings file, the oldest first.
QStringList backupsOf(const QString& path);

} // namespace zel

#endif
