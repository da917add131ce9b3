#ifndef ZEL_SETTINGSDAMAGE_H
#define ZEL_SETTINGSDAMAGE_H

#include <QByteArray>
#include <QString>

namespace zel {

/// What of the text of a settings file would be lost when the toolkit reads it and writes it again: zero
/// bytes, other encodings, and lines that it cannot understand or would not understand as they are meant.
/// Empty when nothing would.
QString settingsDamage(const QByteArray& text);

} // namespace zel

#endif
