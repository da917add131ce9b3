#include "IniCodec.h"

#include <QTextCodec>

namespace {

const int Utf8Mib = 106;

/// Qt's own.
const QTextCodec& utf8()
{
    return *QTextCodec::codecForMib(Utf8Mib);
}

class IniCodec : public QTextCodec
{
public:
    /// A name of its own, because Qt finds the codec by it for the whole process.
    QByteArray name() const override { return "x-zel-settings-ini"; }
    int mibEnum() const override { return -1; } // Not registered.

protected:
    QString convertToUnicode(const char* text, int length, ConverterState* state) const override
    {
        if (state)
            return utf8().toUnicode(text, length, state);
        const QString decoded = QString::fromUtf8(text, length);
        // Qt drops a leading mark, but what is decoded here stands inside the file.
        const bool hasMark = length >= 3 && qstrncmp(text, zel::Utf8Mark, 3) == 0;
        return hasMark ? QChar(QChar::ByteOrderMark) + decoded : decoded;
    }

    QByteArray convertFromUnicode(const QChar* text, int length, ConverterState*) const override
    {
        QString whole(text, length);
        // A first half whose other half does not follow is dropped: this may already be another value.
        if (!m_firstHalf.isNull() && !whole.isEmpty() && whole.at(0).isLowSurrogate())
            whole.prepend(m_firstHalf);
        m_firstHalf = QChar();
        if (!whole.isEmpty() && whole.at(whole.length() - 1).isHighSurrogate()) {
            m_firstHalf = whole.at(whole.length() - 1);
            whole.chop(1);
        }
        return zel::isText(whole) ? whole.toUtf8() : QByteArray();
    }

private:
    mutable QChar m_firstHalf; ///< Of a character whose other half comes next.
};

} // namespace

QTextCodec& zel::iniCodec()
{
    static IniCodec codec;
    return codec;
}

bool zel::isText(const QString& text)
{
    for (int i = 0, length = 0; i < text.size(); i += length) {
        const QChar first = text.at(i), second = i + 1 < text.size() ? text.at(i + 1) : QChar();
        length = first.isHighSurrogate() && second.isLowSurrogate() ? 2 : 1;
        const uint code = length == 2 ? QChar::surrogateToUcs4(first, second) : first.unicode();
        const bool isHalf = code >= 0xD800 && code <= 0xDFFF;
        if (isHalf || (code >= 0xFDD0 && code <= 0xFDEF) || (code & 0xFFFE) == 0xFFFE)
            return false;
    }
    return true;
}
