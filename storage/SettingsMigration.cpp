#include "SettingsMigration.h"

#include "FileAccess.h"
#include "SettingsKeys.h"
#include "SettingsReasons.h"
#include "WorkingCopy.h"
#include "ZelSettingsFile.h"

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
    if (!exists(path))
        return true;
    const auto file = ZelSettingsFile::Open(path);
    if (migrationOf(*file) == Migration::None)
        return true;
    // The version is asked for once more, because a read that failed looks like a file without one.
    const auto change = [&](QSettings& settings, QString& failure) {
        QString reason;
        switch (migrationOf(settings)) {
        case Migration::None:
            break;
        case Migration::Upgrade:
            settings.setValue(keys::SettingsVersion, CurrentSettingsVersion);
            settings.setValue(keys::Engine, engines::Deferred);
            break;
        case Migration::FreshStart:
            if (!WorkingCopy::changing()->keepContent("it is too old", reason))
                return refuseWriting(path, reason, failure);
            settings.clear();
            settings.setValue(keys::Language, language);
        }
        return true;
    };
    return ZelSettingsFile::Write(*file, change, error);
}
