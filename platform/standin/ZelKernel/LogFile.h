#ifndef ZEL_LOGFILE_H
#define ZEL_LOGFILE_H

#include <QByteArray>
#include <QFile>
#include <QString>

/// A log file that cannot grow for ever: once it is past its limit it is kept as "<name>.1", in place of an
/// older one, and begun anew. Processes may share it. What goes wrong is told on standard output, once.
class LogFile
{
public:
    /// Opens the file for appending, in place of a former one. False when that fails.
    bool open(const QString& path);
    void close();
    bool isOpen() const;

    /// Writes a line through to the operating system, so that it survives a crash of the application.
    void append(const QByteArray& line);

private:
    void openForAppending();
    void keepSmall();
    void report(const QByteArray& mishap);

    QFile m_file;
    bool m_reported = false;
};

#endif
