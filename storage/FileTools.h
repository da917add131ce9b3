#ifndef ZEL_FILECOPY_H
#define ZEL_FILECOPY_H

#include <QByteArray>
#include <QString>

#include <filesystem>

namespace zel {

std::filesystem::path nativePath(const QString& path);

/// All of a file; empty when it cannot be read.
QByteArray contentOfFile(const QString& path);

/// What the system says to writing so many bytes into a new file beside this one; empty when it can be done.
QString mishapOfWritingBeside(const QString& path, qint64 size);

/// Copies the settings file. False, with a translated text that is announced too, when that is not possible.
bool copySettingsFile(const QString& path, const QString& copy, QString& error);

/// Replaces a file that begins with the UTF-8 mark by one that does not; the file behind a link. False when
/// that is not possible.
bool dropByteOrderMark(const QString& path);

} // namespace zel

#endif
