#ifndef ZEL_SETTINGSDAMAGE_H
#define ZEL_SETTINGSDAMAGE_H

#include <QByteArray>
#include <QString>

namespace zel {

/// What of the text of a settings file would be lost when the toolkit reads it and writes it again: zero
/// bytes, other encodings, and lines that it cannot understand or would not understand as they are meant. The
/// latter are those whose unquoted value is cut at a ';' ("path=/a;/b"; behind a blank it starts a comment,
/// which nobody misses), or has a '\' that is no escape ("C:\Users") or takes in the next line.
/// Empty when nothing would.
QString settingsDamage(const QByteArray& text);

} // namespace zel

#endif
