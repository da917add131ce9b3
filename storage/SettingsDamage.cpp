#include "SettingsDamage.h"

#include "IniCodec.h"

#include <QRegExp>
#include <QTextCodec>

#include <algorithm>

namespace zel {

namespace {

// The lines that QSettings reads and writes again unchanged. An escape in a value is one that it writes
// itself, or writes as the same character. A comment follows a blank.
const QString Group("[ \\t]*\\[(?:[^\\]\"\\\\;]|\\\\.|\"(?:[^\\]\"\\\\]|\\\\.)*\")*\\][ \\t]*(?:;.*)?");
const QString Key("(?:[^\"\\\\;=]|\\\\.|\"(?:[^\"\\\\]|\\\\.)*\")*");
const QString Escape("\\\\(?:[abfnrtv\"?'\\\\]|x[0-9A-Fa-f]{1,4}(?![0-9A-Fa-f])|0(?![0-7]))");
const QString Comment("(?:[^\"\\\\;]|\\\\.|\"(?:[^\"\\\\]|\\\\.)*\")*;.*"); // Outside quotation marks.
const QString Value("(?:[^\"\\\\;]|%1|\"(?:[^\"\\\\\\r\\n]|%1|\\\\[\\r\\n])*\")*(?:[ \\t];.*)?");

bool isUtf8(const QByteArray& text)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

int lineEnd(const QByteArray& text, int begin)
{
    const auto isEnd = [](char character) { return character == '\n' || character == '\r'; };
    return static_cast<int>(std::find_if(text.begin() + begin, text.end(), isEnd) - text.begin());
}

/// A raw line has no zero at its end, which Qt 4.8 would look for without the length.
QString asText(const QByteArray& line)
{
    return QString::fromLatin1(line.constData(), line.size());
}

bool hasComment(const QByteArray& line)
{
    static const QRegExp comment(Comment);
    return line.contains(';') && comment.exactMatch(asText(line));
}

bool isUnreadable(const QByteArray& line)
{
    static const QRegExp group(Group), setting(Key + '=' + Value.arg(Escape));
    const auto isBlank = [](char character) { return character == ' ' || character == '\t'; };
    const auto* const first = std::find_if_not(line.begin(), line.end(), isBlank);
    if (first == line.end() || *first == ';')
        return false;
    if (*first == '[' || line.contains('"') || line.contains('\\') || line.contains(';'))
        return !(*first == '[' ? group : setting).exactMatch(asText(line));
    return !line.contains('=');
}

/// True for a line that ends with a backslash which is not itself escaped.
bool goesOn(const QByteArray& line)
{
    int end = line.size();
    while (end > 0 && line.at(end - 1) == '\\')
        --end;
    return (line.size() - end) % 2 == 1;
}

/// The number of the first line of a kind, from 1; 0 when there is none.
int firstLine(const QByteArray& text, bool (*isWanted)(const QByteArray& line))
{
    int number = 1;
    int begin = text.startsWith(Utf8Mark) ? 3 : 0;
    while (begin < text.size()) {
        int end = lineEnd(text, begin);
        const auto line = [&] { return QByteArray::fromRawData(text.constData() + begin, end - begin); };
        // A readable line that ends with a backslash ends with a comment, which does not go on.
        const bool isJoined = goesOn(line()) && isUnreadable(line());
        while (isJoined && end < text.size() && goesOn(line())) {
            if (text.at(end) == '\n')
                ++number;
            end = lineEnd(text, end + 1);
        }
        if (isWanted(line()))
            return number;
        if (end < text.size() && text.at(end) == '\n')
            ++number;
        begin = end + 1;
    }
    return 0;
}

} // namespace

QString settingsDamage(const QByteArray& text)
{
    if (text.contains('\0'))
        return "it holds zero bytes";
    if (!isUtf8(text))
        return "it is not UTF-8 text";
    const int line = firstLine(text, &isUnreadable);
    return line ? QString("line %1 cannot be read").arg(line) : QString();
}

QString droppedComment(const QByteArray& text)
{
    const int line = text.contains(';') ? firstLine(text, &hasComment) : 0;
    return line ? QString("line %1 has a comment, which is not kept").arg(line) : QString();
}

} // namespace zel
