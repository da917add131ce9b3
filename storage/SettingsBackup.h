#ifndef ZEL_SETTINGSBACKUP_H
#define ZEL_SETTINGSBACKUP_H

#include <QByteArray>
#include <QString>

namespace zel {

/// Keeps a content of a settings file beside it, as a dated copy "Settings.ini.2024-05-31T18-04-09.123Z.bak"
/// with the rights of the file, and names it in the log. The last three copies are kept. An empty content, or
/// one that a copy already has, is not copied. False, with the reason, when the copy cannot be made: then
/// leave the file as it is.
/// @param loss  why the content is replaced, as in "it is too old"
/// @param incomplete  the name of the copy until it is complete
bool keepBackup(const QString& path, const QByteArray& content, const QString& loss,
                const QString& incomplete, QString& reason);

/// The dated copy of a settings file that has a content; empty without one.
QString backupWith(const QString& path, const QByteArray& content);

} // namespace zel

#endif
