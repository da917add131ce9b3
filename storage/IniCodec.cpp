#include "IniCodec.h"

#include <cstring>

namespace zel {

QTextCodec& IniCodec::instance()
{
    // The toolkit remembers whom it has asked for a name: asked now, it will not hand this codec to others.
    QTextCodec::codecForName("UTF-8");
    static IniCodec codec;
    return codec;
}

QByteArray IniCodec::name() const
{
    return "UTF-8";
}

int IniCodec::mibEnum() const
{
    return -1; // Not registered.
}

QString IniCodec::convertToUnicode(const char* text, int length, ConverterState*) const
{
    const QString decoded = QString::fromUtf8(text, length);
    // The toolkit drops a leading mark, but what is decoded here stands inside the file.
    return length >= 3 && std::memcmp(text, "\xef\xbb\xbf", 3) == 0 ? QChar(QChar::ByteOrderMark) + decoded
                                                                    : decoded;
}

QByteArray IniCodec::convertFromUnicode(const QChar* text, int length, ConverterState*) const
{
    QString whole(text, length);
    if (!m_firstHalf.isNull())
        whole.prepend(m_firstHalf);
    m_firstHalf = QChar();
    if (!whole.isEmpty() && whole.at(whole.length() - 1).isHighSurrogate()) {
        m_firstHalf = whole.at(whole.length() - 1);
        whole.chop(1);
    }
    return whole.toUtf8();
}

} // namespace zel
