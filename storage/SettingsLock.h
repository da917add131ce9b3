#ifndef ZEL_SETTINGSLOCK_H
#define ZEL_SETTINGSLOCK_H

#include "base/FileLock.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace zel {

class Deadline;

/// Keeps other programs from writing a settings file: those that use this class, and QSettings.
class SettingsLock
{
public:
    /// Creates the folder of the file.
    /// @param path  of the file, which may be a link
    /// @param deadline  ends all waits; outlives the lock
    SettingsLock(const QString& path, const Deadline& deadline);

    /// Of the file, as it was given.
    const QString& path() const { return m_path; }
    /// The file behind all links.
    const QString& target() const { return m_names.first(); }
    const Deadline& deadline() const { return m_deadline; }

    /// Waits for others. The reason is set unless the lock is taken.
    FileLock::State take(QString& reason);

    /// Takes the lock, and ends a write that was killed. False, with the reason, when that fails.
    bool takeAndFinish(QString& reason);

    void release();

private:
    Q_DISABLE_COPY(SettingsLock)

    const QString m_path;
    const QStringList m_names;
    const Deadline& m_deadline;
    std::vector<std::unique_ptr<FileLock>> m_locks;
};

/// Ends a write that was killed, if there is one. False, with the reason, when that fails.
bool finishKilledWrite(const QString& path, const Deadline& deadline, QString& reason);

} // namespace zel

#endif
