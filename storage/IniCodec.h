#ifndef ZEL_INICODEC_H
#define ZEL_INICODEC_H

#include <QTextCodec>

namespace zel {

/// UTF-8 as the toolkit's settings need it. They encode a text one 16-bit unit at a time, and of a character
/// that takes two (an emoji, a rarer Chinese character) the toolkit's own codec then writes nothing at all.
/// GUI thread only.
class IniCodec : public QTextCodec
{
public:
    static QTextCodec& instance();

    QByteArray name() const override;
    int mibEnum() const override;

protected:
    QString convertToUnicode(const char* text, int length, ConverterState* state) const override;
    QByteArray convertFromUnicode(const QChar* text, int length, ConverterState* state) const override;

private:
    mutable QChar m_firstHalf; ///< Of a character whose other half comes next.
};

} // namespace zel

#endif
