#include "FileCopy.h"

#include "Announcement.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryFile>

QString zel::mishapOfWritingBeside(const QString& path, qint64 size)
{
    QTemporaryFile probe(path + ".XXXXXX");
    const bool written = probe.open() && probe.write(QByteArray(int(size), '\0')) == size && probe.flush();
    return written ? QString() : probe.errorString();
}

bool zel::copySettingsFile(const QString& path, const QString& copy, QString& error)
{
    QFile file(path);
    if (file.copy(copy))
        return true;
    // The toolkit tells what it could not do, but not why.
    const QString reason = mishapOfWritingBeside(copy, file.size());
    error = QCoreApplication::translate("ZelControlCenter",
                                        "Could not keep a copy of the Torvane settings file \"%1\": %2")
                .arg(path, reason.isEmpty() ? file.errorString() : reason);
    announce("error", error);
    return false;
}
