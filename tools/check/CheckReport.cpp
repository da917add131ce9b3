#include "CheckReport.h"

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

/// The text without anything that could end a line or steer a terminal, and with a backslash before every
/// character of the list.
QByteArray escaped(const QString& text, const QString& escapedToo)
{
    QString result;
    for (const QChar character : text) {
        const bool lineEnd = character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
        if (lineEnd || character.category() == QChar::Other_Control)
            result += QString("\\u%1").arg(character.unicode(), 4, 16, QChar('0'));
        else if (escapedToo.contains(character))
            result += QString("\\") + character;
        else
            result += character;
    }
    return result.toUtf8();
}

/// A JSON string.
QByteArray quoted(const QString& text)
{
    return '"' + escaped(text, "\"\\") + '"';
}

QByteArray member(const char* name, const QByteArray& value)
{
    return QByteArray("  \"") + name + "\": " + value;
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
        result += (result.isEmpty() ? "\n    " : ",\n    ") + itemToJson(item);
    return '[' + result + (result.isEmpty() ? "]" : "\n  ]");
}

QByteArray changeToJson(const SettingsChange& change)
{
    return "{\"key\": " + quoted(change.key) +
           ", \"old\": " + (change.isMissing ? "null" : quoted(change.oldText)) +
           ", \"new\": " + quoted(change.newText) + ", \"reason\": " + quoted(change.reason) + '}';
}

QByteArray changeToText(const SettingsChange& change)
{
    const QByteArray key = escaped(change.key, QString());
    const QByteArray newText = " -> " + quoted(change.newText);
    if (change.isMissing)
        return key + ": missing" + newText;
    return key + ": " + quoted(change.oldText) + newText + ", for the old value " + change.reason.toUtf8();
}

} // namespace

QByteArray CheckReport::toText() const
{
    const bool done = state == CheckState::Repaired;
    QByteArray result = quoted(file) + ": " + stateName(state) + '\n';
    if (!damage.isEmpty())
        result += "  damaged: " + damage.toUtf8() + '\n';
    for (const SettingsChange& change : changes)
        result += "  " + changeToText(change) + '\n';
    for (const QString& folder : folders)
        result += (done ? "  created folder " : "  missing folder ") + quoted(folder) + '\n';
    if (!copy.isEmpty())
        result += "  a copy of the damaged file is kept as " + quoted(copy) + '\n';
    if (!error.isEmpty())
        result += "  " + escaped(error, QString()) + '\n';
    return result;
}

QByteArray CheckReport::toJson() const
{
    const QList<QByteArray> members = {member("file", quoted(file)),
                                       member("state", quoted(stateName(state))),
                                       member("damage", textOrNull(damage)),
                                       member("changes", array(changes, &changeToJson)),
                                       member("folders", array(folders, &quoted)),
                                       member("copy", textOrNull(copy)),
                                       member("error", textOrNull(error))};
    QByteArray result;
    for (const QByteArray& one : members)
        result += (result.isEmpty() ? "" : ",\n") + one;
    return "{\n" + result + "\n}\n";
}

} // namespace zel
