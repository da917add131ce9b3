#include "FileTools.h"

#include "Announcement.h"
#include "ReplacedFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <system_error>

std::filesystem::path zel::nativePath(const QString& path)
{
    return std::filesystem::u8path(path.toUtf8().constData());
}

QByteArray zel::contentOfFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString zel::mishapOfWritingBeside(const QString& path, qint64 size)
{
    QTemporaryFile probe(path + ".XXXXXX");
    const bool written = probe.open() && probe.write(QByteArray(int(size), '\0')) == size && probe.flush();
    return written ? QString() : probe.errorString();
}

bool zel::copySettingsFile(const QString& path, const QString& copy, QString& error)
{
    QFile file(path);
    if (file.copy(copy)) {
        ReplacedFile(path).giveToOwner(copy); // Where that is not allowed, the copy still holds the content.
        return true;
    }
    // The toolkit tells what it could not do, but not why.
    const QString reason = mishapOfWritingBeside(copy, file.size());
    return fail(QCoreApplication::translate("ZelControlCenter",
                                            "Could not keep a copy of the Torvane settings file \"%1\": %2")
                    .arg(path, reason.isEmpty() ? file.errorString() : reason),
                error);
}

bool zel::dropByteOrderMark(const QString& path)
{
    const QByteArray mark("\xEF\xBB\xBF");
    const QByteArray former = contentOfFile(path);
    int begin = 0;
    while (former.mid(begin, mark.size()) == mark)
        begin += mark.size();
    if (begin == 0)
        return true;
    const QString replaced = QFileInfo(path).canonicalFilePath();
    QString name;
    {
        QTemporaryFile file(replaced + ".XXXXXX");
        if (!file.open() || file.write(former.mid(begin)) != former.size() - begin || !file.flush() ||
            !file.setPermissions(QFileInfo(path).permissions()))
            return false;
        file.setAutoRemove(false);
        name = file.fileName();
    }
    std::error_code error;
    // Unless others have written it meanwhile.
    if (ReplacedFile(path).giveToOwner(name) && contentOfFile(path) == former)
        std::filesystem::rename(nativePath(name), nativePath(replaced), error);
    return !QFile::remove(name) && !error; // What is left has not been moved.
}
