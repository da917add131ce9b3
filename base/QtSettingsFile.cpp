#include "QtSettingsFile.h"

#include "SystemCalls.h"

#include <chrono>
#include <filesystem>
#include <system_error>

namespace zel {

namespace {

#if defined(Q_OS_WIN)
const bool IsWindows = true;
#else
const bool IsWindows = false;
#endif

} // namespace

const bool SettingsFilesAreReplaced = IsWindows || QT_VERSION >= QT_VERSION_CHECK(5, 10, 0);
const bool SettingsIgnoreCase = IsWindows || QT_VERSION < QT_VERSION_CHECK(5, 0, 0);
const bool SettingsDropBlanks = QT_VERSION < QT_VERSION_CHECK(5, 0, 0);

FileStamp stampOf(const QString& path)
{
    std::error_code error;
    const auto file = filePath(path);
    const auto size = std::filesystem::file_size(file, error);
    if (error)
        return {-1, 0};
    const auto time = std::filesystem::last_write_time(file, error).time_since_epoch();
    return {static_cast<qint64>(size), std::chrono::duration_cast<std::chrono::milliseconds>(time).count()};
}

bool setTime(const QString& path, std::int64_t time)
{
    std::error_code error;
    std::filesystem::last_write_time(filePath(path),
                                     std::filesystem::file_time_type(std::chrono::milliseconds(time)), error);
    return !error;
}

void makeLater(const QString& path, const FileStamp& replaced)
{
    const FileStamp present = stampOf(path);
    if (present.time / 1000 <= replaced.time / 1000)
        setTime(path, replaced.time + 1000);
}

} // namespace zel
