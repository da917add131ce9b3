#ifndef ZEL_FILEACCESS_H
#define ZEL_FILEACCESS_H

#include <QByteArray>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QIODevice>
#include <QString>
#include <QStringList>

class QFile;

namespace zel {

class FileLock;

/// Ends all waits of one operation for other programs, some time after it has begun.
class Deadline
{
public:
    /// @param time  in milliseconds
    explicit Deadline(int time = 3000)
        : m_time(time)
    {
        m_clock.start();
    }

    /// In milliseconds; 0 once it is over.
    int remaining() const { return static_cast<int>(qMax<qint64>(0, m_time - m_clock.elapsed())); }

    /// Does work of others, whose time does not count.
    template <typename Work>
    bool pauseFor(Work work)
    {
        const qint64 begin = m_clock.elapsed();
        const bool isDone = work();
        m_time += m_clock.elapsed() - begin;
        return isDone;
    }

private:
    QElapsedTimer m_clock;
    qint64 m_time;
};

/// Translates the error texts of the settings file.
struct SettingsFileText
{
    Q_DECLARE_TR_FUNCTIONS(ZelControlCenter)
};

/// @{
/// Make the error of a file that cannot be read or written, and log it. Always false, for the caller to
/// return.
bool refuseReading(const QString& path, const QString& reason, QString& error);
bool refuseWriting(const QString& path, const QString& reason, QString& error);
/// @}

/// The file that a link leads to, also through other links, which may not exist; the file itself if it is no
/// link.
QString resolvedPath(const QString& path);

/// The names of a file under which programs lock it: behind all links, and as it is given.
QStringList namesOf(const QString& path);

/// True for a name that is taken, also when the system does not tell by what.
bool exists(const QString& path);

/// Reads a whole settings file; a missing one is empty. False, with the reason, when it is no regular file,
/// is too large, or cannot be read to its end.
/// @param mode  as which it is opened: to write it as well, it must not be read-only
bool readFile(const QString& path, QByteArray& content, QString& reason,
              const Deadline& deadline = Deadline(), QIODevice::OpenMode mode = QIODevice::ReadOnly);

/// Reads an open settings file from its beginning. False, with the reason, as for readFile().
bool readOpenFile(QFile& file, QByteArray& content, QString& reason);

/// Writes a file and forces it onto the disk. False, with the reason, when not all of it is there.
bool writeFile(const QString& path, const QByteArray& content, QString& reason);

/// Why a settings file cannot be written, as far as that is known without writing; empty when no reason is
/// known.
QString unwritableReason(const QString& path);

/// True when a folder exists and can be written into, or can be created with its missing parents.
bool canCreateFolder(const QString& path);

/// What it means for the user when a lock file cannot be taken.
QString lockReason(const FileLock& lock, bool isHeld);

/// The reason when another program keeps a file locked.
QString lockedReason();

} // namespace zel

#endif
