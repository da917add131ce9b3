#ifndef ZEL_FILECOPY_H
#define ZEL_FILECOPY_H

#include <QString>

namespace zel {

/// What the system says to writing so many bytes into a new file beside this one; empty when it can be done.
QString mishapOfWritingBeside(const QString& path, qint64 size);

/// Copies the settings file. False, with a translated text that is announced too, when that is not possible.
bool copySettingsFile(const QString& path, const QString& copy, QString& error);

} // namespace zel

#endif
