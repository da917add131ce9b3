#ifndef ZEL_FILELOCK_H
#define ZEL_FILELOCK_H

#include <QString>
#include <QtGlobal>

#include <cstdint>

namespace zel {

/// A lock file by the rules of Qt 5's QLockFile, which QSettings takes while it writes: it names its process,
/// and is orphaned when that process has ended, or when it is older than half a minute and nobody holds it.
/// An orphaned lock is removed. Qt 4 has no such class. Not recursive.
class FileLock
{
public:
    /// @param lock  the path of the lock file itself
    explicit FileLock(const QString& lock);
    ~FileLock();

    const QString& path() const { return m_path; }

    enum State {
        Taken,  ///< This process holds it now.
        Held,   ///< Another program holds it, or may do so.
        Blocked ///< Something else has its name, or it cannot be created: systemError() tells why.
    };

    /// Waits for the lock up to the time in milliseconds. Removes an orphaned one.
    State take(int timeout);

    /// True while something that is no lock has its name. Changes nothing.
    bool isBlocked() const;

    /// Lets go; does nothing when the lock is not held.
    void release();

private:
    Q_DISABLE_COPY(FileLock)

    State tryOnce();

    const QString m_path;
    std::intptr_t m_handle;
};

} // namespace zel

#endif
