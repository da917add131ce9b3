#ifndef ZEL_QTSETTINGSLOCK_H
#define ZEL_QTSETTINGSLOCK_H

#include <QFile>

#include <memory>

namespace zel {

/// What QSettings locks before Qt 5.10 while it reads or writes a file, so that it and this process wait for
/// each other. Since then it locks nothing: FileLock is what QSettings takes there.
class QtSettingsLock
{
public:
    enum Access { Read, Write };

    /// @param file  outlives the lock, and is open for this access when it is taken, except on Windows
    QtSettingsLock(const QFile& file, Access access);
    ~QtSettingsLock();

    /// False when another program has the lock for longer than the time in milliseconds.
    bool take(int timeout);

private:
    Q_DISABLE_COPY(QtSettingsLock)

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace zel

#endif
