#include "platform/MTLogger.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMutex>
#include <QMutexLocker>
#include <QStringList>

#include <cstdio>
#include <deque>

namespace {

/// How many events to keep without a handler; the latest ones stay.
const std::size_t KeptEvents = 1000;

/// Bytes; a larger log file is renamed before a new one is opened.
const qint64 SizeLimit = 5LL * 1024 * 1024;

struct Event
{
    QString type;
    QByteArray line;
};

/// The state of the logger. All functions are thread-safe.
class EventLog
{
public:
    void install(const QString& path, bool diagnostics, const QStringList& blackList)
    {
        const QMutexLocker locker(&m_mutex);
        m_diagnostics = diagnostics;
        m_blackList = blackList;
        open(path);
        for (; m_file.isOpen() && !m_kept.empty(); m_kept.pop_front())
            write(m_kept.front());
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
    void open(const QString& path)
    {
        m_file.close();
        m_file.setFileName(path);
        const QFileInfo file(path);
        if (file.isFile() && file.size() > SizeLimit) {
            QFile::remove(path + ".1");
            QFile::rename(path, path + ".1");
        }
        // open() of a pipe blocks until it has a reader.
        const bool special = file.exists() && !file.isFile();
        if (special || !m_file.open(QIODevice::Append | QIODevice::Text | QIODevice::Unbuffered)) {
            const QString reason = special ? QString("it is not a file") : m_file.errorString();
            std::printf("The log file \"%s\" cannot be opened: %s\n", path.toUtf8().constData(),
                        reason.toUtf8().constData());
            std::fflush(stdout);
        }
    }

    void write(const Event& event)
    {
        const bool debug = event.type.compare("debug", Qt::CaseInsensitive) == 0;
        if ((m_diagnostics || !debug) && !m_blackList.contains(event.type, Qt::CaseInsensitive))
            m_file.write(event.line);
    }

    QMutex m_mutex;
    QFile m_file; // Unbuffered, so that a crash loses no event.
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

/// Escapes the characters that can end a line or control a terminal.
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
    const QString time = QLocale::c().toString(QDateTime::currentDateTime(), "yyyy-MM-dd'T'HH:mm:ss.zzz");
    const QString line = time + " [" + onOneLine(name) + "] " + onOneLine(fromUtf8(textUtf8)) + '\n';
    eventLog().log({name, line.toUtf8()});
}
