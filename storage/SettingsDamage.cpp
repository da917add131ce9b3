#include "SettingsDamage.h"

#include "IniCodec.h"
#include "base/SystemFiles.h"

#include <QRegExp>
#include <QSet>
#include <QStringList>
#include <QTextCodec>

#include <algorithm>
#include <functional>

namespace zel {

namespace {

// The lines that QSettings reads and writes again unchanged. An escape in a value is one that it writes
// itself, or writes as the same character. A comment follows a blank.
const QString Group("[ \\t]*\\[(?:[^\\]\"\\\\;]|\\\\.|\"(?:[^\\]\"\\\\]|\\\\.)*\")*\\][ \\t]*(?:;.*)?");
const QString Key("(?:[^\"\\\\;=]|\\\\.|\"(?:[^\"\\\\]|\\\\.)*\")*");
const QString Escape("\\\\(?:[abfnrtv\"?'\\\\]|x[0-9A-Fa-f]{1,4}(?![0-9A-Fa-f])|0(?![0-7]))");
const QString Comment("(?:[^\"\\\\;]|\\\\.|\"(?:[^\"\\\\]|\\\\.)*\")*;.*"); // Outside quotation marks.
const QString Value("(?:[^\"\\\\;]|%1|\"(?:[^\"\\\\\\r\\n]|%1|\\\\[\\r\\n])*\")*(?:[ \\t];.*)?");

// What QSettings decodes.
const char* const Objects[] = {"@Variant(", "@DateTime("};

bool isUtf8(const QByteArray& text)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

/// A raw line has no zero at its end, which Qt 4.8 would look for without the length.
QString asText(const QByteArray& line)
{
    return QString::fromLatin1(line.constData(), line.size());
}

int lineEnd(const QByteArray& text, int begin)
{
    const auto isEnd = [](char character) { return character == '\n' || character == '\r'; };
    return static_cast<int>(std::find_if(text.begin() + begin, text.end(), isEnd) - text.begin());
}

/// The first character that is no blank; a zero byte in an empty line.
char firstCharacter(const QByteArray& line)
{
    const auto isBlank = [](char character) { return character == ' ' || character == '\t'; };
    const auto* const first = std::find_if_not(line.begin(), line.end(), isBlank);
    return first == line.end() ? '\0' : *first;
}

bool hasComment(const QByteArray& line)
{
    static const QRegExp comment(Comment);
    return line.contains(';') && comment.exactMatch(asText(line));
}

bool isUnreadable(const QByteArray& line)
{
    static const QRegExp group(Group), setting(Key + '=' + Value.arg(Escape));
    const char first = firstCharacter(line);
    if (first == '\0' || first == ';')
        return false;
    if (first == '[' || line.contains('"') || line.contains('\\') || line.contains(';'))
        return !(first == '[' ? group : setting).exactMatch(asText(line));
    return !line.contains('=');
}

/// True for a line that ends with a backslash which is not itself escaped.
bool isContinued(const QByteArray& line)
{
    int end = line.size();
    while (end > 0 && line.at(end - 1) == '\\')
        --end;
    return (line.size() - end) % 2 == 1;
}

/// A line of a text, or several that are joined by backslashes at their ends.
struct Line
{
    QByteArray text;
    int number; ///< From 1; of the first when several are joined.
    int begin;  ///< In the text.
    int end;    ///< Behind its line end.
};

/// The first line of a kind; its number is 0 when there is none.
Line firstLine(const QByteArray& text, const std::function<bool(const Line& line)>& isWanted)
{
    int number = 1;
    int begin = text.startsWith(Utf8Mark) ? 3 : 0;
    while (begin < text.size()) {
        int end = lineEnd(text, begin), last = number;
        const auto line = [&] { return QByteArray::fromRawData(text.constData() + begin, end - begin); };
        // A readable line that ends with a backslash ends with a comment, which does not go on.
        const bool isJoined = isContinued(line()) && isUnreadable(line());
        while (isJoined && end < text.size() && isContinued(line())) {
            if (text.mid(end, 2) == "\r\n")
                ++end;
            if (text.at(end) == '\n')
                ++last;
            end = lineEnd(text, end + 1);
        }
        const Line found = {line(), last, begin, std::min(end + 1, text.size())};
        if (isWanted(found))
            return found;
        if (end < text.size() && text.at(end) == '\n')
            ++last;
        number = last;
        begin = end + 1;
    }
    return {QByteArray(), 0, 0, 0};
}

/// Decodes the name of a group or a key: "a%20b" is "a b", "a\b" is "a/b".
QString decodedName(const QByteArray& name)
{
    QString decoded;
    for (int i = 0; i < name.size(); ++i) {
        const char character = name.at(i);
        const int start = i + (name.mid(i + 1, 1) == "U" ? 2 : 1);
        bool isHex = false;
        const ushort code = name.mid(start, start - i == 2 ? 4 : 2).toUShort(&isHex, 16);
        if (character == '%' && isHex) {
            decoded += QChar(code);
            i = start + (start - i == 2 ? 3 : 1);
        } else {
            decoded += character == '\\' ? QChar('/') : QChar(static_cast<uchar>(character));
        }
    }
    return decoded;
}

/// Finds settings that stand twice: QSettings keeps the last. Follows the groups of the lines that it is
/// given.
class SeenKeys
{
public:
    /// True when an earlier line has the same key, or the line begins a group without a name.
    bool isLost(const QByteArray& line)
    {
        const char first = firstCharacter(line);
        if (first == '[')
            return !enter(
                line.mid(line.indexOf('[') + 1, line.indexOf(']') - line.indexOf('[') - 1).trimmed());
        if (first == '\0' || first == ';')
            return false;
        QString key = m_group + decodedName(line.left(line.indexOf('=')).trimmed());
        while (key.startsWith('/')) // QSettings writes it without.
            key.remove(0, 1);
        if (SettingsIgnoreCase)
            key = key.toLower();
        const bool isKnown = m_keys.contains(key);
        m_keys.insert(key);
        return isKnown;
    }

private:
    /// False for a group whose keys cannot be looked up.
    bool enter(const QByteArray& name)
    {
        const QByteArray plain = name.toLower();
        m_group =
            plain == "general" ? QString() : decodedName(plain == "%general" ? name.mid(1) : name) + '/';
        return !m_group.startsWith('/');
    }

    QString m_group;
    QSet<QString> m_keys;
};

/// The elements of a value as QSettings decodes them, which drops an escape that it does not know.
/// @param hasComment  a ';' outside quotation marks begins a comment
QStringList decodedElements(const QByteArray& value, bool hasComment)
{
    const QByteArray simple = "abfnrtv\"?'\\", meant = "\a\b\f\n\r\t\v\"?'\\";
    QStringList elements("");
    bool isQuoted = false, isBegun = false;
    for (int i = 0; i < value.size(); ++i) {
        const char character = value.at(i);
        if (character == '"') {
            isQuoted = !isQuoted;
            isBegun = true;
        } else if (character == ',' && !isQuoted) {
            elements += "";
            isBegun = false;
        } else if (character == ';' && !isQuoted && hasComment) {
            break;
        } else if (character == '\\' && i + 1 < value.size()) {
            const char kind = value.at(++i);
            const int base = kind == 'x' ? 16 : 8, begin = kind == 'x' ? i + 1 : i;
            int end = begin, code = 0;
            for (bool isDigit = true; isDigit && end < value.size();) {
                const int digit = value.mid(end, 1).toInt(&isDigit, base);
                code = isDigit ? (code * base + digit) & 0xFFFF : code;
                end += isDigit;
            }
            if (simple.contains(kind))
                elements.last() += QChar(meant.at(simple.indexOf(kind)));
            else if (end > begin)
                elements.last() += QChar(static_cast<ushort>(code));
            isBegun = true;
            if (value.mid(i, 2) == "\r\n")
                ++i;
            i = std::max(i, end - 1);
        } else if (isBegun || (character != ' ' && character != '\t')) {
            elements.last() += QChar(static_cast<uchar>(character));
            isBegun = true;
        }
    }
    return elements;
}

QByteArray valueOf(const QByteArray& line)
{
    const char first = firstCharacter(line);
    return first == '[' || first == ';' ? QByteArray() : line.mid(line.indexOf('=') + 1);
}

/// False for most texts, without a closer look: an escape may stand for the '@'.
bool mayHoldObjects(const QByteArray& text)
{
    return text.contains('@') || text.contains('\\');
}

/// True when QSettings would decode an object of the line. What it makes of lines that cannot be read depends
/// on what stands before them, so in a text with such lines the name of an object alone counts.
bool holdsObject(const QByteArray& line, bool isTextReadable)
{
    if (!mayHoldObjects(line))
        return false;
    QByteArray value = isTextReadable ? valueOf(line) : line;
    value.replace(Utf8Mark, ""); // Qt's own codec drops it.
    for (const QString& element : decodedElements(value, isTextReadable))
        for (const char* const object : Objects)
            if (isTextReadable ? element.startsWith(object) : element.contains(object))
                return true;
    return false;
}

/// True when a value has half of a character that takes two: QSettings writes nothing for it.
bool hasHalfCharacter(const QByteArray& line)
{
    if (!line.contains("\\x"))
        return false;
    for (const QString& element : decodedElements(valueOf(line), true)) {
        bool isOpen = false;
        for (const QChar character : element) {
            if (character.isLowSurrogate() != isOpen)
                return true;
            isOpen = character.isHighSurrogate();
        }
        if (isOpen)
            return true;
    }
    return false;
}

bool isReadable(const QByteArray& text)
{
    return isUtf8(text) &&
           firstLine(text, [](const Line& line) { return isUnreadable(line.text); }).number == 0;
}

} // namespace

bool holdsObjects(const QByteArray& text)
{
    if (!mayHoldObjects(text))
        return false;
    const bool isTextReadable = isReadable(text);
    return firstLine(text, [&](const Line& line) { return holdsObject(line.text, isTextReadable); }).number !=
           0;
}

QByteArray withoutObjects(const QByteArray& text)
{
    if (!mayHoldObjects(text))
        return text;
    const bool isTextReadable = isReadable(text);
    QByteArray kept;
    int begin = 0;
    firstLine(text, [&](const Line& line) {
        if (holdsObject(line.text, isTextReadable)) {
            kept += text.mid(begin, line.begin - begin);
            begin = line.end;
        }
        return false;
    });
    return kept + text.mid(begin);
}

QString settingsDamage(const QByteArray& text)
{
    if (text.contains('\0'))
        return "it holds zero bytes";
    if (!isUtf8(text))
        return "it is not UTF-8 text";
    const auto describe = [](const Line& line, const char* what) {
        return line.number ? QString("line %1 %2").arg(line.number).arg(what) : QString();
    };
    const Line unreadable = firstLine(
        text, [](const Line& line) { return isUnreadable(line.text) || hasHalfCharacter(line.text); });
    if (unreadable.number)
        return describe(unreadable, "cannot be read");
    if (mayHoldObjects(text)) {
        const Line object = firstLine(text, [](const Line& line) { return holdsObject(line.text, true); });
        if (object.number)
            return describe(object, "holds a serialised object");
    }
    SeenKeys seen;
    return describe(firstLine(text, [&](const Line& line) { return seen.isLost(line.text); }),
                    "has a key that stands twice, or a group without a name");
}

QString droppedComment(const QByteArray& text)
{
    if (!text.contains(';'))
        return QString();
    const Line comment = firstLine(text, [](const Line& line) { return hasComment(line.text); });
    return comment.number ? QString("line %1 has a comment, which is not kept").arg(comment.number)
                          : QString();
}

} // namespace zel
