#include "UnfinishedWrite.h"

#include "Announcement.h"
#include "FileCopy.h"

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

void putBack(const QString& path)
{
    // Unlike the toolkit's, this one replaces the file in one step.
    std::error_code error;
    std::filesystem::rename(std::filesystem::u8path(copyOf(path).toUtf8().constData()),
                            std::filesystem::u8path(fileBehind(path).toUtf8().constData()), error);
    if (!error)
        announce("warning", QString("Writing \"%1\" was cut short; its former content is back.").arg(path));
}

} // namespace

bool UnfinishedWrite::begin(const QString& path, QString& error)
{
    recover(path);
    return !QFile::exists(path) || copySettingsFile(path, copyOf(path), error);
}

void UnfinishedWrite::end(const QString& path, bool written)
{
    if (!written && QFile::exists(copyOf(path)))
        putBack(path);
    QFile::remove(copyOf(path));
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
    // A file that has been written later than that is whole: another program has done it.
    if (writtenAt(path) <= writtenAt(copy).addMSecs(LongestWrite))
        putBack(path);
    QFile::remove(copy);
}

} // namespace zel
