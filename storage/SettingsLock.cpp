#include "SettingsLock.h"

#include "FileAccess.h"
#include "SettingsReasons.h"
#include "SpareCopy.h"

#include <QDir>
#include <QFileInfo>

namespace zel {

SettingsLock::SettingsLock(const QString& path, const Deadline& deadline)
    : m_path(path)
    , m_names(namesOf(path))
    , m_deadline(deadline)
{
    const QString folder = QFileInfo(path).path();
    if (!exists(folder))
        QDir().mkpath(folder);
    for (const QString& name : m_names)
        m_locks.push_back(std::make_unique<FileLock>(name + ".lock"));
}

FileLock::State SettingsLock::take(QString& reason)
{
    for (const auto& lock : m_locks) {
        const FileLock::State state = lock->take(m_deadline.remaining());
        if (state != FileLock::Taken) {
            reason = untakenLockReason(*lock, state == FileLock::Held);
            release();
            return state;
        }
    }
    return FileLock::Taken;
}

bool SettingsLock::takeAndFinish(QString& reason)
{
    const SpareCopy spare(target(), m_deadline);
    return take(reason) == FileLock::Taken && (!spare.exists() || spare.finish(reason));
}

void SettingsLock::release()
{
    for (const auto& lock : m_locks)
        lock->release();
}

bool finishKilledWrite(const QString& path, const Deadline& deadline, QString& reason)
{
    return !SpareCopy(resolvedPath(path), deadline).exists() ||
           SettingsLock(path, deadline).takeAndFinish(reason);
}

} // namespace zel
