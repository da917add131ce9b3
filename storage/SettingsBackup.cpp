#include "SettingsBackup.h"

#include "Announcement.h"
#include "FileTools.h"
#include "SettingsDamage.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace zel {

namespace {

const int KeptCopies = 3;
// The order of the names is the order of the copies, also when summer time ends.
const char* const NameFormat = "yyyy-MM-dd'T'hh-mm-ss.zzz'Z.bak'";

/// The copies that there are, the oldest first.
QStringList copiesOf(const QString& path)
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

QString newName(const QString& path)
{
    QDateTime time = QDateTime::currentDateTime().toUTC();
    QString name;
    do {
        name = path + "." + time.toString(NameFormat);
        time = time.addMSecs(1);
    } while (QFile::exists(name));
    return name;
}

} // namespace

bool SettingsBackup::keep(const QString& path, const QString& reason, QString& copy, QString& error,
                          const QString& source)
{
    copy.clear();
    const QString givenUp = source.isEmpty() ? path : source;
    if (QFileInfo(givenUp).size() == 0)
        return true;
    const QByteArray content = contentOfFile(givenUp);
    QStringList former = copiesOf(path);
    for (const QString& kept : former) {
        if (!content.isEmpty() && contentOfFile(kept) == content)
            copy = kept;
    }
    if (copy.isEmpty()) {
        const QString name = newName(path);
        if (!copySettingsFile(givenUp, name, error))
            return false;
        copy = name;
        while (former.size() >= KeptCopies)
            QFile::remove(former.takeFirst());
    }
    announce("warning",
             QString("The settings file \"%1\" will be replaced: %2. A copy of it is kept as \"%3\".")
                 .arg(givenUp, reason, copy));
    return true;
}

bool SettingsBackup::keepIfDamaged(const QString& path, QString& copy, QString& error)
{
    copy.clear();
    const QString damage = settingsDamage(contentOfFile(path));
    return damage.isEmpty() || keep(path, damage, copy, error);
}

} // namespace zel
