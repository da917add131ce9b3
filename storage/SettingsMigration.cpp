#include "SettingsMigration.h"

#include "SettingsBackup.h"
#include "SettingsKeys.h"
#include "ZelSettingsFile.h"

#include <QFile>
#include <QRegExp>
#include <QSettings>

zel::Migration zel::migrationOf(const QSettings& settings)
{
    const QString text = settings.value(keys::SettingsVersion).toString().trimmed();
    bool isNumber = false;
    const qint64 version = text.toLongLong(&isNumber);
    // Digits that do not fit into 64 bits are a larger number.
    if (version >= CurrentSettingsVersion || (!isNumber && QRegExp("\\+?[0-9]+").exactMatch(text)))
        return Migration::None;
    return version > 0 ? Migration::Upgrade : Migration::FreshStart;
}

bool zel::migrateSettings(const QString& path, const QString& language, QString& error)
{
    if (!QFile::exists(path))
        return true;
    const auto file = ZelSettingsFile::Open(path);
    const Migration migration = migrationOf(*file);
    if (migration == Migration::None)
        return true;
    if (migration == Migration::FreshStart &&
        (!ZelSettingsFile::IsWritable(path, error) || !keepBackup(path, "it is too old", error)))
        return false;
    const auto change = [&](QSettings& settings, QString&) {
        if (migration == Migration::Upgrade) {
            settings.setValue(keys::SettingsVersion, CurrentSettingsVersion);
            settings.setValue(keys::Engine, engines::Deferred);
        } else {
            settings.clear();
            settings.setValue(keys::Language, language);
        }
        return true;
    };
    return ZelSettingsFile::Write(*file, change, error);
}
