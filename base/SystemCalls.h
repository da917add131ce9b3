#ifndef ZEL_SYSTEMCALLS_H
#define ZEL_SYSTEMCALLS_H

#include <QElapsedTimer>
#include <QFile>
#include <QString>

#include <chrono>
#include <filesystem>
#include <thread>

namespace zel {

/// Repeats an attempt until it succeeds or the time, in milliseconds, is over. Makes at least one.
template <typename Attempt>
bool succeedsWithin(int timeout, Attempt attempt)
{
    const int pause = 10; // ms
    QElapsedTimer clock;
    clock.start();
    while (!attempt()) {
        if (clock.elapsed() >= timeout)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(pause));
    }
    return true;
}

/// A path as the calls of the system take it.
#if defined(Q_OS_WIN)
inline const wchar_t* native(const QString& path)
{
    return reinterpret_cast<const wchar_t*>(path.utf16());
}
#else
inline QByteArray native(const QString& path)
{
    return QFile::encodeName(path);
}
#endif

inline std::filesystem::path filePath(const QString& path)
{
    return std::filesystem::u8path(path.toUtf8().constData());
}

} // namespace zel

#endif
