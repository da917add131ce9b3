#include "IniCodec.h"

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
    return QString::fromUtf8(text, length);
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
