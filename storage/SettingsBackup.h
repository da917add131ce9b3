#ifndef ZEL_SETTINGSBACKUP_H
#define ZEL_SETTINGSBACKUP_H

#include <QString>
#include <QStringList>

namespace zel {

/// Keeps a dated copy of a settings file beside it, before its content is given up:
/// "Settings.ini.2024-05-31T18-04-09.123Z.bak". The last three stay. False, with a translated text, if that
/// is not possible: the file should then stay as it is. A file without content needs no copy, and a content
/// that is kept already gets no second one. The log names the copy.
/// @param reason  why the content is given up, as in "it is too old"
/// @param source  the file that holds the content, where it is not the settings file itself
bool keepBackup(const QString& path, const QString& reason, QString& error,
                const QString& source = QString());

/// The copies that there are, the oldest first.
QStringList backupsOf(const QString& path);

} // namespace zel

#endif
