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
    const QString dataFolder = cleanFolder(kqDirUtils::GetAppDataFolderUtf8(), applicationName);
    const QString cacheFolder =
        cleanFolder(ZelDirectory::GetTempFolderUtf8(applicationName.toUtf8().constData()),
                    QString::fromUtf8(kqSystemUtils::GetCurrentUserNameUtf8().c_str()));

    using Rules = ZelSettingsValidators;
    const struct
    {
        const char* key;
        QString defaultValue;
        ZelSettingsRegistry::Validator validator;
    } settings[] = {
        {keys::Engine, engines::Deferred, &Rules::ensureEngine},
        {keys::SettingsVersion, QString::number(CurrentSettingsVersion), &Rules::ensureSettingsVersion},
        {keys::EnableDiagnostics, "false", &Rules::ensureBool},
        {keys::LogTypeBlackList, QString(), &Rules::noOp},
        {keys::LogFile, dataFolder + "/log.txt", &Rules::ensureFile},
        {keys::CacheSize, "4096", &Rules::noOp},
        {keys::CacheDirectory, cacheFolder, &Rules::ensureDMCacheFolder},
    };
    for (const auto& setting : settings)
        ZelSettingsRegistry::RegisterSetting(setting.key, setting.defaultValue, setting.validator);
}

} // namespace zel
