#include "CheckReport.h"

#include <QChar>
#include <QList>

#include <algorithm>
#include <iterator>

namespace zel {

namespace {

const char* stateName(CheckState state)
{
    switch (state) {
    case CheckState::Clean:
        return "clean";
    case CheckState::NeedsRepair:
        return "needs repair";
    case CheckState::Repaired:
        return "repaired";
    case CheckState::NotRepairable:
        break;
    }
    return "not repairable";
}

/// 0 for the best outcome.
int severity(CheckState state)
{
    const CheckState states[] = {CheckState::Clean, CheckState::Repaired, CheckState::NeedsRepair,
                                 CheckState::NotRepairable};
    return static_cast<int>(std::find(std::begin(states), std::end(states), state) - std::begin(states));
}

/// True for a character that can end a line or control a terminal, and for half of a surrogate pair, which
/// UTF-8 cannot encode.
bool mustBeEscaped(uint character)
{
    const QChar::Category categories[] = {QChar::Other_Control, QChar::Other_Format, QChar::Other_Surrogate,
                                          QChar::Separator_Line, QChar::Separator_Paragraph};
    if (character == 0x061C || (character >= 0x2064 && character <= 0x206F))
        return true; // Format characters that Qt 4.8 does not know.
    return std::find(std::begin(categories), std::end(categories), QChar::category(character)) !=
           std::end(categories);
}

/// The text as UTF-8 with escapes: "\uXXXX" where needed, and a backslash before each of the given
/// characters.
QByteArray escaped(const QString& text, const QString& charactersToQuote)
{
    QString result;
    int length = 0;
    for (int at = 0; at < text.length(); at += length) {
        const bool pair =
            text.at(at).isHighSurrogate() && at + 1 < text.length() && text.at(at + 1).isLowSurrogate();
        length = pair ? 2 : 1;
        const QString character = text.mid(at, length);
        if (mustBeEscaped(pair ? QChar::surrogateToUcs4(character.at(0), character.at(1))
                               : character.at(0).unicode())) {
            for (const QChar half : character)
                result += QString("\\u%1").arg(half.unicode(), 4, 16, QChar('0'));
        } else {
            result += (charactersToQuote.contains(character) ? "\\" : "") + character;
        }
    }
    return result.toUtf8();
}

/// The text in quotation marks, as JSON and C write it.
QByteArray quoted(const QString& text)
{
    return '"' + escaped(text, "\"\\") + '"';
}

QByteArray member(const char* name, const QByteArray& value)
{
    return QByteArray("\"") + name + "\": " + value;
}

QByteArray textOrNull(const QString& text)
{
    return text.isEmpty() ? "null" : quoted(text);
}

template <typename Items, typename ItemToJson>
QByteArray array(const Items& items, ItemToJson itemToJson)
{
    QByteArray result;
    for (const auto& item : items)
        result += (result.isEmpty() ? "" : ", ") + itemToJson(item);
    return '[' + result + ']';
}

QByteArray changeToJson(const SettingsChange& change)
{
    return "{\"key\": " + quoted(change.key) +
           ", \"old\": " + (change.old.isValid() ? quoted(valueText(change.old)) : "null") +
           ", \"new\": " + quoted(change.newText) + ", \"reason\": " + quoted(change.reason) + '}';
}

QByteArray changeToText(const SettingsChange& change)
{
    const QByteArray key = escaped(change.key, QString());
    const QByteArray newText = " -> " + quoted(change.newText);
    if (!change.old.isValid())
        return key + ": missing" + newText;
    return key + ": " + quoted(valueText(change.old)) + newText + ", for the old value " +
           change.reason.toUtf8();
}

} // namespace

CheckState worseOf(CheckState one, CheckState other)
{
    return severity(one) < severity(other) ? other : one;
}

QByteArray CheckReport::toText() const
{
    const bool done = state == CheckState::Repaired;
    QByteArray result = quoted(file) + ": " + stateName(state) + '\n';
    if (isFreshStart)
        result +=
            "  fresh start: its version is too old, so the editor keeps nothing of it but the language\n";
    if (!damage.isEmpty())
        result += "  damaged: " + damage.toUtf8() + '\n';
    for (const SettingsChange& change : changes)
        result += "  " + changeToText(change) + '\n';
    for (const QString& folder : folders)
        result += (done ? "  created folder " : "  missing folder ") + quoted(folder) + '\n';
    if (!copy.isEmpty())
        result += "  a copy of the former file is kept as " + quoted(copy) + '\n';
    if (!error.isEmpty())
        result += "  " + escaped(error, QString()) + '\n';
    return result;
}

QByteArray CheckReport::toJson() const
{
    const QList<QByteArray> members = {member("file", quoted(file)),
                                       member("state", quoted(stateName(state))),
                                       member("freshStart", isFreshStart ? "true" : "false"),
                                       member("damage", textOrNull(damage)),
                                       member("changes", array(changes, &changeToJson)),
                                       member("folders", array(folders, &quoted)),
                                       member("copy", textOrNull(copy)),
                                       member("error", textOrNull(error))};
    QByteArray result;
    for (const QByteArray& one : members)
        result += (result.isEmpty() ? "" : ", ") + one;
    return '{' + result + "}\n";
}

} // namespace zel
