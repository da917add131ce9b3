#ifndef ZEL_SETTINGSDAMAGE_H
#define ZEL_SETTINGSDAMAGE_H

#include <QByteArray>
#include <QString>

namespace zel {

/// Why the text of a settings file would lose something when QSettings reads it and writes it again: zero
/// bytes, another encoding, or a line that QSettings cannot understand or takes for something else than it
/// says. Such are unquoted values that are cut at a ';' ("path=/a;/b") or have a '\' that is no escape
/// ("C:\Users") or takes in the next line. Empty when nothing would be lost; comments do not count.
QString settingsDamage(const QByteArray& text);

/// Which line of a text has a comment, which QSettings drops; empty when none has.
QString droppedComment(const QByteArray& text);

} // namespace zel

#endif
