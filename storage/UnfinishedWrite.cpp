#include "UnfinishedWrite.h"

#include "FileAccess.h"
#include "SettingsBackup.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <system_error>
#include <thread>

namespace zel {

namespace {

// A write takes milliseconds: one that takes longer has died. Longer than a tick of any file system's clock.
const int LongestWrite = 3000; // ms
const int Pause = 50;          // ms

QString copyOf(const QString& path)
{
    return fileBehind(path).filePath() + ".unfinished"; // So that a link stays one.
}

QDateTime writtenAt(const QString& path)
{
    return QFileInfo(path).lastModified();
}

/// Leaves the copy where it is when it cannot be put back.
void putBack(const QString& path)
{
    std::error_code error;
    std::filesystem::rename(nativePath(copyOf(path)), nativePath(fileBehind(path).filePath()), error);
    logWarning(QString(error
                           ? "Writing \"%1\" was cut short, and its former content \"%2\" cannot be put back."
                           : "Writing \"%1\" was cut short; its former content is back from \"%2\".")
                   .arg(path, copyOf(path)));
}

} // namespace

bool UnfinishedWrite::begin(const QString& path, QString& error)
{
    if (!QFile::exists(path))
        return true;
    if (!copySettingsFile(path, copyOf(path), error))
        return false;
    // A copy with the old file's time would look like one that was left behind.
    std::error_code ignored;
    std::filesystem::last_write_time(nativePath(copyOf(path)), std::filesystem::file_time_type::clock::now(),
                                     ignored);
    return true;
}

void UnfinishedWrite::end(const QString& path, bool written)
{
    if (written || contentOfFile(path) == contentOfFile(copyOf(path)))
        QFile::remove(copyOf(path));
    else if (QFile::exists(copyOf(path)))
        putBack(path);
}

void UnfinishedWrite::recover(const QString& path)
{
    const QString copy = copyOf(path);
    for (int waited = 0; waited < LongestWrite; waited += Pause) {
        if (!QFile::exists(copy) || writtenAt(copy).addMSecs(LongestWrite) < QDateTime::currentDateTime())
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(Pause));
    }
    if (!QFile::exists(copy))
        return;
    // A file that another program has written later is whole.
    const bool isWhole = writtenAt(path) > writtenAt(copy).addMSecs(LongestWrite);
    QString error;
    const bool isKept = contentOfFile(path) == contentOfFile(copy) ||
                        keepBackup(path, "its writing was cut short", error, isWhole ? copy : path);
    if (isKept || !isWhole) // Half a file is given up even where there is no room for a copy of it.
        end(path, isWhole);
}

} // namespace zel
