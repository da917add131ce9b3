#ifndef ZEL_SETTINGSDAMAGE_H
#define ZEL_SETTINGSDAMAGE_H

#include <QByteArray>
#include <QString>

namespace zel {

/// Why QSettings would lose something of this text by reading it and writing it again; empty if nothing. The
/// reasons: zero bytes, an encoding other than UTF-8, a line that it cannot parse, an unquoted value that it
/// cuts at a ';' ("path=/a;/b"), a '\' that is no escape ("C:\Users"), a line that it joins with the next, a
/// key that stands twice, a name that it writes as another ("[/a]", "[%general]"), half of a character that
/// takes two ("\xd83d"), a serialised object ("@Variant(...)"). Comments do not count: see droppedComment().
QString settingsDamage(const QByteArray& text);

/// True when a line of a text holds a serialised object, which QSettings decodes as soon as it reads the
/// line. No setting is one, and a hostile or damaged one can end the process.
bool holdsObjects(const QByteArray& text);

/// A text without the lines that hold serialised objects.
QByteArray withoutObjects(const QByteArray& text);

/// Which line of a text has a comment, which QSettings drops; empty when none has.
QString droppedComment(const QByteArray& text);

} // namespace zel

#endif
