#include "UnfinishedWrite.h"

#include "FileAccess.h"
#include "SettingsBackup.h"
#include "base/ZelFileFunctions.h"

#include <QDateTime>

#include <chrono>
#include <system_error>
#include <thread>

namespace zel {

namespace {

// A write takes milliseconds. This is longer than a tick of any file system's clock.
const int WriteTimeout = 3000; // ms
const int Pause = 50;          // ms

/// Beside the file itself, so that a link stays one.
QString copyOf(const QString& path)
{
    return fileBehind(path).filePath() + ".unfinished";
}

QDateTime writtenAt(const QString& path)
{
    return QFileInfo(path).lastModified();
}

} // namespace

bool UnfinishedWrite::begin(const QString& path, QString& error)
{
    return !QFile::exists(path) || copySettingsFile(path, copyOf(path), error);
}

void UnfinishedWrite::end(const QString& path, bool written)
{
    const QString copy = copyOf(path);
    if (written || contentOfFile(path) == contentOfFile(copy)) {
        succeedsWhenFree([&] { return QFile::remove(copy) || !QFile::exists(copy); });
        return;
    }
    std::error_code error;
    if (!succeedsWhenFree([&] {
            std::filesystem::rename(nativePath(copy), nativePath(fileBehind(path).filePath()), error);
            return !error;
        }))
        logWarning(QString("Writing \"%1\" failed, and its former content \"%2\" cannot be put back.")
                       .arg(path, copy));
}

void UnfinishedWrite::recover(const QString& path)
{
    const QString copy = copyOf(path);
    // The writer may still be at work.
    for (int waited = 0; QFile::exists(copy) && waited < WriteTimeout &&
                         writtenAt(copy).msecsTo(QDateTime::currentDateTime()) < WriteTimeout;
         waited += Pause)
        std::this_thread::sleep_for(std::chrono::milliseconds(Pause));
    if (!QFileInfo(copy).isFile())
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
