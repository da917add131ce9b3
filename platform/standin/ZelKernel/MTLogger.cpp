#include "platform/MTLogger.h"

#include "platform/standin/ZelKernel/LogFile.h"

#include <QDateTime>
#include <QMutex>
#include <QMutexLocker>
#include <QStringList>

#include <deque>

namespace {

/// How many of the latest events are kept while there is no handler.
const std::size_t KeptEvents = 1000;

struct Event
{
    QString type;
    QByteArray line;
};

/// The state of the logger; every function may be called from any thread.
class EventLog
{
public:
    void install(const QString& path, bool diagnostics, const QStringList& blackList)
    {
        const QMutexLocker locker(&m_mutex);
        m_diagnostics = diagnostics;
        m_blackList = blackList;
        if (!m_file.open(path))
            return;
        for (const Event& event : m_kept)
            write(event);
        m_kept.clear();
    }

    void remove()
    {
        const QMutexLocker locker(&m_mutex);
        m_file.close();
    }

    void log(const Event& event)
    {
        const QMutexLocker locker(&m_mutex);
        if (m_file.isOpen()) {
            write(event);
            return;
        }
        m_kept.push_back(event);
        if (m_kept.size() > KeptEvents)
            m_kept.pop_front();
    }

private:
    void write(const Event& event)
    {
        const bool debug = event.type.compare("debug", Qt::CaseInsensitive) == 0;
        if ((m_diagnostics || !debug) && !m_blackList.contains(event.type, Qt::CaseInsensitive))
            m_file.append(event.line);
    }

    QMutex m_mutex;
    LogFile m_file;
    bool m_diagnostics = false;
    QStringList m_blackList;
    std::deque<Event> m_kept;
};

EventLog& eventLog()
{
    static EventLog log;
    return log;
}

QString fromUtf8(const std::string& text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

/// Escapes whatever could end the line or steer a terminal that shows it.
QString onOneLine(const QString& text)
{
    QString line;
    for (const QChar character : text) {
        const bool separator = character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
        if (character == '\n')
            line += "\\n";
        else if (character == '\r')
            line += "\\r";
        else if (separator || (character.category() == QChar::Other_Control && character != '\t'))
            line += QString("\\u%1").arg(character.unicode(), 4, 16, QChar('0'));
        else
            line += character;
    }
    return line;
}

QStringList typesIn(QString list)
{
    QStringList types;
    for (const QString& type : list.replace(';', ',').split(',')) {
        if (!type.trimmed().isEmpty())
            types += type.trimmed();
    }
    return types;
}

} // namespace

void MTLogger::InstallFileHandler(const std::string& fileUtf8, bool diagnostics,
                                  const std::string& blackListUtf8)
{
    eventLog().install(fromUtf8(fileUtf8), diagnostics, typesIn(fromUtf8(blackListUtf8)));
}

void MTLogger::RemoveFileHandler()
{
    eventLog().remove();
}

void MTLogger::Log(const std::string& type, const std::string& textUtf8)
{
    const QString name = fromUtf8(type).trimmed();
    const QString time = QDateTime::currentDateTime().toString("yyyy-MM-ddTHH:mm:ss.zzz");
    const QString line = time + " [" + onOneLine(name) + "] " + onOneLine(fromUtf8(textUtf8)) + '\n';
    eventLog().log({name, line.toUtf8()});
}
