#include "SettingsBackup.h"

#include "FileAccess.h"
#include "base/ZelFileFunctions.h"

#include <QDateTime>

#include <algorithm>

namespace zel {

namespace {

const int MaximumCopies = 3;
// In UTC, so that the order of the names is the order of the copies also when summer time ends.
const char* const NameFormat = "yyyy-MM-dd'T'hh-mm-ss.zzz'Z.bak'";

QString newName(const QString& path)
{
    const QDateTime now = QDateTime::currentDateTime().toUTC();
    QString name;
    for (int offset = 0; name.isEmpty() || QFile::exists(name); ++offset)
        name = path + "." + now.addMSecs(offset).toString(NameFormat);
    return name;
}

} // namespace

QStringList backupsOf(const QString& path)
{
    const QFileInfo file(path);
    const QString prefix = file.fileName() + ".";
    QStringList copies;
    for (const QString& name : file.dir().entryList(QDir::Files | QDir::Hidden, QDir::Name)) {
        if (name.startsWith(prefix) && QDateTime::fromString(name.mid(prefix.length()), NameFormat).isValid())
            copies += file.dir().filePath(name);
    }
    return copies;
}

bool keepBackup(const QString& path, const QString& reason, QString& error, const QString& source)
{
    const QString givenUp = source.isEmpty() ? path : source;
    const QByteArray content = contentOfFile(givenUp);
    if (content.isEmpty() && QFileInfo(givenUp).size() == 0) // Else it cannot be read.
        return true;
    QStringList copies = backupsOf(path);
    if (std::any_of(copies.begin(), copies.end(),
                    [&content](const QString& copy) { return contentOfFile(copy) == content; }))
        return true;
    const QString copy = newName(path);
    if (!copySettingsFile(givenUp, copy, error))
        return false;
    while (copies.size() >= MaximumCopies)
        QFile::remove(copies.takeFirst());
    logWarning(QString("The settings file \"%1\" will be replaced: %2. A copy of it is kept as \"%3\".")
                   .arg(givenUp, reason, copy));
    return true;
}

} // namespace zel
