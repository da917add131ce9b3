#include "UnfinishedWrite.h"

#include "FileAccess.h"
#include "SettingsBackup.h"
#include "base/ZelFileFunctions.h"

#include <QDateTime>

#include <chrono>
#include <cstdlib>
#include <system_error>
#include <thread>

namespace zel {

namespace {

// A write takes milliseconds. This is longer than a tick of any file system's clock.
const int WriteTimeout = 3000; // ms

/// Beside the file itself, so that a link stays one.
QString copyOf(const QString& path)
{
    return fileBehind(path).filePath() + ".unfinished";
}

QDateTime writtenAt(const QString& path)
{
    return QFileInfo(path).lastModified();
}

/// Whether the writer that has made the copy may still be at work.
bool mayBeAlive(const QString& copy)
{
    const qint64 age = writtenAt(copy).msecsTo(QDateTime::currentDateTime());
    return QFile::exists(copy) && std::abs(age) < WriteTimeout; // The clocks of servers differ.
}

} // namespace

bool UnfinishedWrite::begin(const QString& path, QString& error)
{
    if (!QFile::exists(path))
        return true;
    if (!copySettingsFile(path, copyOf(path), error))
        return false;
    // Some systems give the copy the time of the file; it would look like one that was left behind.
    std::error_code ignored;
    std::filesystem::last_write_time(nativePath(copyOf(path)), std::filesystem::file_time_type::clock::now(),
                                     ignored);
    return true;
}

void UnfinishedWrite::end(const QString& path, bool written)
{
    const QString copy = copyOf(path);
    if (written || contentOfFile(path) == contentOfFile(copy)) {
        QFile::remove(copy);
        return;
    }
    std::error_code error;
    std::filesystem::rename(nativePath(copy), nativePath(fileBehind(path).filePath()), error);
    if (QFile::exists(copy))
        logWarning(QString("Writing \"%1\" failed, and its former content \"%2\" cannot be put back.")
                       .arg(path, copy));
}

void UnfinishedWrite::recover(const QString& path)
{
    const QString copy = copyOf(path);
    while (mayBeAlive(copy))
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    if (!QFile::exists(copy))
        return;
    // A file that another program has written later is whole.
    const bool isWhole = writtenAt(path) > writtenAt(copy).addMSecs(WriteTimeout);
    QString error;
    const bool isKept = contentOfFile(path) == contentOfFile(copy) ||
                        keepBackup(path, "its writing was cut short", error, isWhole ? copy : path);
    if (isKept || !isWhole) // Half a file is given up even where there is no room for a copy of it.
        end(path, isWhole);
}

} // namespace zel
