#include "SettingsMigration.h"

#include "SettingsBackup.h"
#include "SettingsKeys.h"
#include "ZelSettingsFile.h"

#include <QFile>
#include <QSettings>

namespace {

using namespace zel;

bool startAfresh(QSettings& settings, const QString& language, QString& error)
{
    QString copy;
    if (!SettingsBackup::keep(settings.fileName(), "it is too old", copy, error))
        return false;
    settings.clear();
    settings.setValue(keys::Language, language);
    return ZelSettingsFile::Sync(settings, error);
}

} // namespace

bool zel::isUpgradedInPlace(int version)
{
    return version > 0 && version < CurrentSettingsVersion;
}

bool zel::migrateSettings(const QString& path, const QString& language, QString& error)
{
    if (!QFile::exists(path))
        return true;
    QSettings settings(path, QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    const int version = settings.value(keys::SettingsVersion, 0).toInt();
    if (version >= CurrentSettingsVersion)
        return true;
    if (!ZelSettingsFile::PrepareWriting(path, error))
        return false;
    if (!isUpgradedInPlace(version))
        return startAfresh(settings, language, error);
    settings.setValue(keys::SettingsVersion, CurrentSettingsVersion);
    settings.setValue(keys::Engine, engines::Deferred);
    return ZelSettingsFile::Sync(settings, error);
}
