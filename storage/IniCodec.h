#ifndef ZEL_INICODEC_H
#define ZEL_INICODEC_H

class QString;
class QTextCodec;

namespace zel {

const char* const Utf8Mark = "\xEF\xBB\xBF"; ///< The byte order mark of UTF-8.

/// UTF-8 as QSettings needs it. QSettings encodes a text one 16-bit unit at a time, and of a character that
/// takes two (an emoji, a rarer Chinese character) Qt's own codec then writes nothing at all. It writes
/// nothing for what is not text; see isText(). With a converter's state, as for a stream, it is Qt's own
/// codec. GUI thread only.
QTextCodec& iniCodec();

/// False for half of a character that takes two, and for the codes that Unicode keeps free of characters
/// (U+FFFF), which Qt 4 cannot write as UTF-8.
bool isText(const QString& text);

} // namespace zel

#endif
