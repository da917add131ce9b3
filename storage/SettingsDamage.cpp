#include "SettingsDamage.h"

#include "IniCodec.h"
#include "base/QtSettingsFile.h"

#include <QSet>
#include <QStringList>
#include <QTextCodec>

#include <algorithm>

namespace zel {

namespace {

// What QSettings decodes.
const char* const Objects[] = {"@Variant(", "@DateTime("};

const int UsualLength = 32; ///< Of a value.
const QChar ElementMark(1); ///< Before each element of a decoded value, which may be a list.

bool isLineEnd(const QByteArray& text, int at)
{
    const char character = at < text.size() ? text.at(at) : '\0';
    return character == '\n' || character == '\r';
}

/// 1 or 2; 0 when no line ends here, or only the text.
int lineEndLength(const QByteArray& text, int at)
{
    const bool isPair = isLineEnd(text, at) && isLineEnd(text, at + 1) && text.at(at) != text.at(at + 1);
    return isPair ? 2 : isLineEnd(text, at) ? 1 : 0;
}

bool isBlank(char character)
{
    return character == ' ' || character == '\t';
}

/// A character of a value, or an escape.
struct Token
{
    int end;     ///< Behind it, in the text.
    int meaning; ///< A UTF-16 unit, or a byte of UTF-8; -1 for what QSettings drops.
    bool isKept; ///< It is a character, or an escape that QSettings writes itself or as the same character.
};

Token tokenAt(const QByteArray& text, int at)
{
    static const QByteArray escapes = "abfnrtv\"?'\\", meanings = "\a\b\f\n\r\t\v\"?'\\";
    static const QByteArray octalDigits = "01234567", hexDigits = octalDigits + "89abcdefABCDEF";
    const char character = text.at(at);
    if (character != '\\' || at + 1 == text.size())
        return {at + 1, static_cast<uchar>(character), character != '\\'};
    const char kind = text.at(at + 1);
    const int simple = escapes.indexOf(kind);
    if (simple >= 0)
        return {at + 2, meanings.at(simple), true};
    const bool isHex = kind == 'x';
    const int begin = at + (isHex ? 2 : 1);
    int end = begin;
    while (end < text.size() && (isHex ? hexDigits : octalDigits).contains(text.at(end)))
        ++end;
    if (end == begin)
        return {at + 1 + qMax(1, lineEndLength(text, at + 1)), -1, false};
    // Of more digits than fit, the last ones count.
    const uint code = text.mid(begin, end - begin).right(6).toUInt(nullptr, isHex ? 16 : 8);
    return {end, static_cast<ushort>(code), isHex ? end <= begin + 4 : end == begin + 1 && code == 0};
}

/// A line of a settings file. One in which a quoted value ends with a backslash goes on in the next.
struct Line
{
    int begin = 0;          ///< In the text.
    int end = 0;            ///< Behind its line end.
    int number = 0;         ///< Where it ends, from 1.
    bool isReadable = true; ///< QSettings reads it, and writes it again unchanged.
    bool hasComment = false;
    bool isGroup = false;
    QByteArray name = QByteArray(); ///< Encoded; of the group or of the setting.
    /// Decoded, except that a byte of UTF-8 is a character; without the blanks outside quotation marks.
    QString value = QString();
};

/// Reads a text line by line, up to one that cannot be read.
class Scanner
{
public:
    explicit Scanner(const QByteArray& text)
        : m_text(text)
        , m_at(text.startsWith(Utf8Mark) ? static_cast<int>(qstrlen(Utf8Mark)) : 0)
    {
    }

    /// False behind the last line.
    bool next(Line& line)
    {
        line = Line();
        line.begin = m_at;
        if (m_at == m_text.size())
            return false;
        skipBlanks();
        if (!atLineEnd() && !readComment(line))
            line.isReadable = m_text.at(m_at) == '[' ? readGroup(line) : readSetting(line);
        line.number = m_number;
        skip(lineEndLength(m_text, m_at));
        line.end = m_at;
        return true;
    }

private:
    bool atLineEnd() const { return m_at == m_text.size() || isLineEnd(m_text, m_at); }

    void skip(int length)
    {
        for (; length > 0; --length)
            m_number += m_text.at(m_at++) == '\n';
    }

    void skipBlanks()
    {
        while (m_at < m_text.size() && isBlank(m_text.at(m_at)))
            ++m_at;
    }

    /// ; comment
    bool readComment(Line& line)
    {
        line.hasComment = m_text.at(m_at) == ';';
        while (line.hasComment && !atLineEnd())
            ++m_at;
        return line.hasComment;
    }

    /// [name]
    bool readGroup(Line& line)
    {
        line.isGroup = true;
        ++m_at;
        if (!readName(line, ']'))
            return false;
        skipBlanks();
        return atLineEnd() || readComment(line);
    }

    /// name=value
    bool readSetting(Line& line)
    {
        if (!readName(line, '='))
            return false;
        line.value.reserve(UsualLength);
        line.value += ElementMark;
        bool isQuoted = false;
        while (!atLineEnd()) {
            const char character = m_text.at(m_at);
            if (character == ';' && !isQuoted) // QSettings takes that of "path=/a;/b" for a comment as well.
                return isBlank(m_text.at(m_at - 1)) && readComment(line);
            const Token token = tokenAt(m_text, m_at);
            const bool isDropped =
                SettingsDropBlanks && !isQuoted && character == '\\' && token.meaning == ' ';
            if (isDropped || (!token.isKept && !(isQuoted && isLineEnd(m_text, m_at + 1))))
                return false;
            if (character == '"')
                isQuoted = !isQuoted;
            else if (character == ',' && !isQuoted)
                line.value += ElementMark;
            else if (token.meaning >= 0 && (isQuoted || !isBlank(character)))
                line.value += QChar(token.meaning);
            skip(token.end - m_at);
        }
        return !isQuoted;
    }

    /// Up to a character, and behind it. A backslash separates groups, but hides some characters.
    bool readName(Line& line, char end)
    {
        for (const int begin = m_at; !atLineEnd(); ++m_at) {
            const char character = m_text.at(m_at);
            if (character == end) {
                line.name = m_text.mid(begin, m_at - begin).trimmed();
                ++m_at;
                return true;
            }
            if (character == '"' || character == ';' || (character == '\\' && m_text.mid(m_at + 1, 1) == "="))
                return false;
        }
        return false;
    }

    const QByteArray& m_text;
    int m_at;
    int m_number = 1;
};

bool isUtf8(const QByteArray& text)
{
    QTextCodec::ConverterState state;
    const QString decoded =
        QTextCodec::codecForName("UTF-8")->toUnicode(text.constData(), text.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 && isText(decoded);
}

bool isReadable(const QByteArray& text)
{
    Line line;
    for (Scanner scanner(text); line.isReadable && scanner.next(line);)
        continue;
    return line.isReadable && isUtf8(text);
}

/// True when an object begins behind a text in a decoded value.
bool holdsObject(QString decoded, const QString& before)
{
    if (!decoded.contains('@'))
        return false;
    // QSettings skips blanks behind a quotation mark, and Qt's own codec the mark of the encoding. Not by
    // QString::remove(), which in Qt 4 moves the rest for each character that it removes.
    const auto isSkipped = [](QChar character) { return character == ' ' || character == '\t'; };
    const auto end = std::remove_if(decoded.begin(), decoded.end(), isSkipped);
    decoded.truncate(static_cast<int>(end - decoded.begin()));
    decoded = decoded.split(QString::fromLatin1(Utf8Mark)).join(QString());
    for (const char* const object : Objects)
        if (decoded.contains(before + object))
            return true;
    return false;
}

/// Calls visit(begin, end) for each part of a text that holds an object.
template <typename Visit>
void forEachObject(const QByteArray& text, Visit visit)
{
    if (!text.contains('@') && !text.contains('\\')) // An escape may stand for the '@'.
        return;
    if (isReadable(text)) {
        Line line;
        for (Scanner scanner(text); scanner.next(line);)
            if (holdsObject(line.value, ElementMark))
                visit(line.begin, line.end);
        return;
    }
    // What QSettings makes of a line depends on all lines before it. So the name of an object counts
    // anywhere.
    for (int begin = 0, end = 0; begin < text.size(); begin = end) {
        QString decoded;
        while (end < text.size() && !isLineEnd(text, end)) {
            const Token token = tokenAt(text, end);
            if (token.meaning >= 0 && text.at(end) != '"')
                decoded += QChar(token.meaning);
            end = token.end;
        }
        end += lineEndLength(text, end);
        if (holdsObject(decoded, QString()))
            visit(begin, end);
    }
}

/// True when QSettings does not write all of a decoded value, or does not read it again.
bool isCut(const QString& value)
{
    return !isText(value) ||
           (SettingsDropBlanks && (value + ElementMark).contains(QString("\t") + ElementMark));
}

/// Decodes the name of a group or a key: "a%20b" is "a b", "a\b" is "a/b".
QString decodedName(const QByteArray& name)
{
    if (!name.contains('%') && !name.contains('\\')) // Almost all of them.
        return QString::fromLatin1(name);
    QString decoded;
    for (int i = 0; i < name.size(); ++i) {
        const char character = name.at(i);
        bool isEscape = false;
        if (character == '%') {
            const bool isLong = name.mid(i + 1, 1) == "U"; // %U1f42 in place of %20.
            const QByteArray digits = isLong ? name.mid(i + 2, 4) : name.mid(i + 1, 2);
            const ushort code = digits.toUShort(&isEscape, 16);
            if (isEscape) {
                decoded += QChar(code);
                i += digits.size() + (isLong ? 1 : 0);
            }
        }
        if (!isEscape)
            decoded += character == '\\' ? QChar('/') : QChar(static_cast<uchar>(character));
    }
    return decoded;
}

/// Finds settings that QSettings does not keep. Follows the groups of the lines that it is given.
class Keys
{
public:
    explicit Keys(bool hasMark)
        : m_isMarked(hasMark)
    {
    }

    /// True when an earlier line has the same key, or QSettings writes the key under another name or
    /// does not find it.
    bool isLost(const Line& line)
    {
        const QByteArray& encoded = line.name;
        if (SettingsIgnoreCase &&
            std::any_of(encoded.begin(), encoded.end(), [](uchar byte) { return byte > 127; }))
            return true;
        if (line.isGroup) {
            m_isMarked = false;
            const QByteArray plain = line.name.toLower();
            m_group = decodedName(plain == "%general" ? line.name.mid(1) : line.name) + '/';
            if (plain == "general")
                m_group.clear();
            return m_group.startsWith('/');
        }
        if (line.value.isNull()) // It has no setting.
            return false;
        static const QString general = "General/";
        const QString name = decodedName(line.name), key = m_group + name;
        const int count = m_keys.size();
        m_keys.insert(SettingsIgnoreCase ? key.toLower() : key);
        // Of "=1" in "[a\b]" QSettings makes "b\=1" in "[a]", in which it finds no "=".
        const bool isHidden = name.isEmpty() && m_group.count('/') > 1;
        // Before the first group QSettings takes the mark of the encoding for a part of the name.
        return m_keys.size() == count || m_isMarked || isHidden || key.startsWith('/') ||
               name.endsWith('/') ||
               (key.startsWith(general, Qt::CaseInsensitive) && !key.startsWith(general));
    }

private:
    bool m_isMarked;
    QString m_group;
    QSet<QString> m_keys;
};

} // namespace

bool holdsObjects(const QByteArray& text)
{
    bool isFound = false;
    forEachObject(text, [&](int, int) { isFound = true; });
    return isFound;
}

QByteArray withoutObjects(const QByteArray& text)
{
    QByteArray kept;
    int copied = 0;
    forEachObject(text, [&](int begin, int end) {
        kept += text.mid(copied, begin - copied);
        copied = end;
    });
    return kept + text.mid(copied);
}

QString settingsDamage(const QByteArray& text)
{
    if (text.contains('\0'))
        return "it holds zero bytes";
    if (!isUtf8(text))
        return "it is not UTF-8 text";
    Line line;
    Keys keys(text.startsWith(Utf8Mark));
    for (Scanner scanner(text); scanner.next(line);) {
        const char* const damage = !line.isReadable || isCut(line.value)  ? "cannot be read"
                                   : holdsObject(line.value, ElementMark) ? "holds a serialised object"
                                   : keys.isLost(line)                    ? "has a key twice, or a lost name"
                                                                          : nullptr;
        if (damage)
            return QString("line %1 %2").arg(line.number).arg(damage);
    }
    return QString();
}

QString droppedComment(const QByteArray& text)
{
    Line line;
    for (Scanner scanner(text); line.isReadable && scanner.next(line);)
        if (line.hasComment)
            return QString("line %1 has a comment, which is not kept").arg(line.number);
    return QString();
}

} // namespace zel
