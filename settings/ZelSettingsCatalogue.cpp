#include "ZelSettingsCatalogue.h"

#include "SettingsKeys.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include "platform/ZelDirectory.h"
#include "platform/kqDirUtils.h"
#include "platform/kqSystemUtils.h"

#include <string>

namespace zel {

namespace {

QString cleanFolder(const std::string& parentUtf8, const QString& name)
{
    QString folder = QString::fromUtf8(parentUtf8.c_str()) + "/" + name;
    ZelSettingsValidators::CleanupFolder(folder);
    return folder;
}

} // namespace

void ZelSettingsCatalogue::InitDefaultSettingsValues(const QString& applicationName)
{
    const std::string applicationNameUtf8 = applicationName.toUtf8().constData();
    const QString dataFolder = cleanFolder(kqDirUtils::GetAppDataFolderUtf8(), applicationName);
    const QString cacheFolder =
        cleanFolder(ZelDirectory::GetTempFolderUtf8(applicationNameUtf8),
                    QString::fromUtf8(kqSystemUtils::GetCurrentUserNameUtf8().c_str()));

    const struct
    {
        const char* key;
        QString defaultValue;
        ZelSettingsRegistry::Validator validator;
    } settings[] = {
        {keys::Engine, engines::Deferred, &ZelSettingsValidators::ensureEngine},
        {keys::SettingsVersion, QString::number(CurrentSettingsVersion),
         &ZelSettingsValidators::ensureSettingsVersion},
        {keys::EnableDiagnostics, "false", &ZelSettingsValidators::ensureBool},
        {keys::LogTypeBlackList, QString(), &ZelSettingsValidators::noOp},
        {keys::LogFile, dataFolder + "/log.txt", &ZelSettingsValidators::ensureFile},
        {keys::CacheSize, "4096", &ZelSettingsValidators::noOp},
        {keys::CacheDirectory, cacheFolder, &ZelSettingsValidators::ensureDMCacheFolder},
    };
    for (const auto& setting : settings)
        ZelSettingsRegistry::RegisterSetting(setting.key, setting.defaultValue, setting.validator);
}

} // namespace zel
