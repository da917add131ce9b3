#include "platform/standin/ZelKernel/LogFile.h"

#include <QFileInfo>

#include <cstdio>

namespace {

const qint64 Limit = 5LL * 1024 * 1024;

} // namespace

bool LogFile::open(const QString& path)
{
    close();
    m_reported = false;
    m_file.setFileName(path);
    openForAppending();
    keepSmall();
    return m_file.isOpen();
}

void LogFile::close()
{
    m_file.close();
}

bool LogFile::isOpen() const
{
    return m_file.isOpen();
}

void LogFile::append(const QByteArray& line)
{
    keepSmall();
    if (m_file.isOpen() && m_file.write(line) != line.size())
        report("cannot be written");
}

void LogFile::openForAppending()
{
    const QFileInfo file(m_file.fileName());
    // Opening a pipe would wait for whoever reads it.
    if (file.exists() && !file.isFile())
        report("is not a file");
    else if (!m_file.open(QIODevice::Append | QIODevice::Text | QIODevice::Unbuffered))
        report("cannot be opened");
}

void LogFile::keepSmall()
{
    if (!m_file.isOpen() || m_file.size() <= Limit)
        return;
    const QString path = m_file.fileName();
    const QString kept = path + ".1";
    m_file.close();
    // Another process may have done it already: then this one only has to follow.
    if (QFileInfo(path).size() > Limit) {
        QFile::remove(kept);
        if (!QFile::rename(path, kept))
            report("cannot be renamed and grows on");
    }
    openForAppending();
}

void LogFile::report(const QByteArray& mishap)
{
    if (m_reported)
        return;
    m_reported = true;
    const QByteArray reason = m_file.error() == QFile::NoError ? "" : ": " + m_file.errorString().toUtf8();
    std::printf("The log file \"%s\" %s%s\n", m_file.fileName().toUtf8().constData(), mishap.constData(),
                reason.constData());
    std::fflush(stdout);
}
