#include "SettingsDamage.h"

#include <QTextCodec>

#include <cctype>
#include <cstring>

namespace zel {

namespace {

const char* const ByteOrderMark = "\xEF\xBB\xBF";
const int LongestEscape = 6; // "x1F60", and a digit too many.

bool isUtf8(const QByteArray& text)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

bool isLineEnd(char character)
{
    return character == '\n' || character == '\r';
}

/// One line, taken in character by character.
class Line
{
public:
    void take(char character)
    {
        const bool blank = character == ' ' || character == '\t';
        if (character == ';' && !m_quoted && !m_comment) {
            m_comment = true;
            m_lossy = m_lossy || (m_assigned && !m_blank);
        }
        m_blank = blank;
        if (blank || m_comment)
            return;
        m_garbled = m_garbled || m_closed; // Whatever follows the name of a group.
        m_quoted = m_quoted != (character == '"');
        m_closed = m_first == '[' && character == ']';
        m_assigned = m_assigned || (character == '=' && !m_quoted);
        if (!m_first)
            m_first = character;
    }

    /// What stands behind a backslash, up to the end of the text.
    void takeEscaped(const QByteArray& text)
    {
        take('\\');
        m_lossy = m_lossy || (m_assigned && !isEscape(text));
    }

    bool isComment() const { return m_comment; }

    bool isReadable() const
    {
        return !m_lossy &&
               (!m_first || (!m_garbled && !m_quoted && (m_first == '[' ? m_closed : m_assigned)));
    }

private:
    /// Of those that the toolkit understands, the ones that it writes, or writes as the same again.
    bool isEscape(const QByteArray& text) const
    {
        const char character = text.isEmpty() ? ' ' : text.at(0);
        if (isLineEnd(character))
            return m_quoted;
        int digits = 1;
        while (digits < text.size() && std::isxdigit(uchar(text.at(digits))))
            ++digits;
        if (character == 'x')
            return digits > 1 && digits <= 5;
        if (character == '0')
            return text.size() < 2 || text.at(1) < '0' || text.at(1) > '7';
        return std::strchr("abfnrtv\"?'\\", character) != nullptr;
    }

    char m_first = 0;
    bool m_blank = false;
    bool m_comment = false;
    bool m_lossy = false;
    bool m_quoted = false;
    bool m_closed = false;
    bool m_assigned = false;
    bool m_garbled = false;
};

/// The number of the first line that cannot be read, from 1; 0 when there is none.
int unreadableLine(const QByteArray& text)
{
    Line line;
    int number = 1;
    for (int at = text.startsWith(ByteOrderMark) ? 3 : 0; at < text.size(); ++at) {
        if (text.at(at) == '\\' && !line.isComment()) {
            line.takeEscaped(text.mid(at + 1, LongestEscape));
            ++at; // What follows has lost its own meaning, and a line end lets the line go on.
        } else if (!isLineEnd(text.at(at))) {
            line.take(text.at(at));
        } else if (!line.isReadable()) {
            return number;
        } else {
            line = Line();
        }
        if (at < text.size() && text.at(at) == '\n')
            ++number;
    }
    return line.isReadable() ? 0 : number;
}

} // namespace

QString settingsDamage(const QByteArray& text)
{
    if (text.contains('\0'))
        return "it holds zero bytes";
    if (!isUtf8(text))
        return "it is not UTF-8 text";
    const int line = unreadableLine(text);
    return line ? QString("line %1 cannot be read").arg(line) : QString();
}

} // namespace zel
