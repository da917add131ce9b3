#include "ZelSettingsFile.h"

#include "platform/MTLogger.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <cstdio>

namespace zel {

namespace {

const qint64 MaximumFileSize = qint64(64) * 1024 * 1024;

QString unreadableReason(const QFileInfo& file)
{
    if (!file.isFile())
        return QCoreApplication::translate("ZelControlCenter", "it is not a file");
    if (file.size() > MaximumFileSize)
        return QCoreApplication::translate("ZelControlCenter", "it is too large");
    QFile reader(file.filePath());
    return reader.open(QIODevice::ReadOnly) ? QString() : reader.errorString();
}

QString unwritableReason(const QString& path)
{
    // The toolkit's settings only tell that writing failed; trying to open the file tells more.
    QFile writer(path);
    if (QFile::exists(path) && !writer.open(QIODevice::ReadWrite))
        return writer.errorString();
    return QCoreApplication::translate("ZelControlCenter",
                                       "the disk is full, or the folder cannot be written to");
}

void report(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    MTLogger::Log("error", utf8.constData());
    std::puts(utf8.constData());
    std::fflush(stdout);
}

} // namespace

void ZelSettingsFile::UseFileEncoding(QSettings& settings)
{
    settings.setIniCodec("UTF-8");
}

bool ZelSettingsFile::IsUsable(const QString& path, QString& error)
{
    const QFileInfo file(path);
    const QString reason = file.exists() ? unreadableReason(file) : QString();
    if (reason.isEmpty())
        return true;
    error =
        QCoreApplication::translate("ZelControlCenter", "Could not read the Torvane settings file \"%1\": %2")
            .arg(path, reason);
    report(error);
    return false;
}

bool ZelSettingsFile::Sync(QSettings& settings, QString& error)
{
    settings.sync();
    if (settings.status() != QSettings::AccessError)
        return true;
    error = QCoreApplication::translate("ZelControlCenter",
                                        "Could not write the Torvane settings file \"%1\": %2")
                .arg(settings.fileName(), unwritableReason(settings.fileName()));
    report(error);
    return false;
}

} // namespace zel
