#include "UnfinishedWrite.h"

#include "Announcement.h"
#include "FileTools.h"
#include "SettingsBackup.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>

namespace zel {

namespace {

/// A write takes milliseconds: one that takes longer has died. Longer than a tick of any file system's clock.
const int LongestWrite = 3000; // ms
const int Pause = 50;          // ms

/// The file itself where the path is a link, so that the link stays one.
QString fileBehind(const QString& path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    return file.isEmpty() ? path : file;
}

QString copyOf(const QString& path)
{
    return fileBehind(path) + ".unfinished";
}

QDateTime writtenAt(const QString& path)
{
    return QFileInfo(path).lastModified();
}

/// False also when one of them cannot be read.
bool areAlike(const QString& one, const QString& other)
{
    QFile file(one), second(other);
    return file.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly) &&
           file.readAll() == second.readAll();
}

/// Leaves the copy where it is when that cannot be done.
void putBack(const QString& path)
{
    const std::filesystem::path copy = nativePath(copyOf(path)), file = nativePath(fileBehind(path));
    std::error_code error;
    // Unlike the toolkit, in one step, unless the file cannot be replaced.
    std::filesystem::rename(copy, file, error);
    if (error &&
        std::filesystem::copy_file(copy, file, std::filesystem::copy_options::overwrite_existing, error))
        QFile::remove(copyOf(path));
    if (error)
        announce("error", QString("Writing \"%1\" was cut short; \"%2\" holds its former content: %3")
                              .arg(path, copyOf(path), QString::fromLocal8Bit(error.message().c_str())));
    else
        announce("warning", QString("Writing \"%1\" was cut short; its former content is back.").arg(path));
}

} // namespace

bool UnfinishedWrite::begin(const QString& path, QString& error)
{
    recover(path);
    if (!QFile::exists(path))
        return true;
    if (!copySettingsFile(path, copyOf(path), error))
        return false;
    // A copy that kept the old file's time would look like one that was left behind.
    std::error_code mishap;
    std::filesystem::last_write_time(nativePath(copyOf(path)), std::filesystem::file_time_type::clock::now(),
                                     mishap);
    return true;
}

void UnfinishedWrite::end(const QString& path, bool written)
{
    if (written || areAlike(path, copyOf(path)))
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
    // A file that has been written later is whole: another program has done it. But clocks are set, and
    // machines fall asleep: what is given up is kept.
    const bool isWhole = writtenAt(path) > writtenAt(copy).addMSecs(LongestWrite);
    const bool isSame = areAlike(path, copy);
    QString kept, error;
    if (!isSame &&
        !SettingsBackup::keep(path, "its writing was cut short", kept, error, isWhole ? copy : path))
        return;
    if (isSame || isWhole)
        QFile::remove(copy);
    else
        putBack(path);
}

} // namespace zel
