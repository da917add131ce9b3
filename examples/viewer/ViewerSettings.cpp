#include "ViewerSettings.h"

#include <QCoreApplication>
#include <QSettings>

#include <zel/SettingsKeys.h>
#include <zel/ZelControlCenter.h>
#include <zel/ZelPageDefaults.h>
#include <zel/ZelSettingsFile.h>

namespace keys = zel::keys;

namespace {

using Rules = zel::ZelControlCenter;

// A validator repairs the value in place. It fails only where that is impossible.
bool ensureScreenshotFolder(const QString&, const QString& defaultValue, QString& value, QString& error)
{
    if (Rules::ensureFolder(defaultValue, value))
        return true;
    error =
        QCoreApplication::translate("ViewerSettings", "The folder \"%1\" for screenshots cannot be created.")
            .arg(value);
    return false;
}

bool ensureTurnSpeed(const QString&, const QString& defaultValue, QString& value, QString&)
{
    bool isNumber = false;
    const int speed = value.toInt(&isNumber);
    value = isNumber ? QString::number(qBound(1, speed, 90)) : defaultValue;
    return true;
}

// An end check sees all settings together, after the validators have repaired each value.
bool foldersDiffer(QSettings& settings, QString& error)
{
    const QString cache = settings.value(keys::CacheDirectory).toString();
    if (cache != settings.value(keys::ScreenshotFolder).toString())
        return true;
    error = QCoreApplication::translate(
                "ViewerSettings", "The cache and the screenshots share the folder \"%1\", and screenshots "
                                  "would be lost with the cache. Please change one of them in \"%2\".")
                .arg(cache, settings.fileName());
    return false;
}

} // namespace

void ViewerSettings::Register(const QString& applicationName, const QString& folder)
{
    const struct
    {
        const char* key;
        QString defaultText;
        zel::ZelSettingsRegistry::Validator validator;
    } settings[] = {
        {keys::Language, "en", &Rules::noOp},
        {keys::ScreenshotFolder, folder + "/Screenshots", &ensureScreenshotFolder},
        {viewerkeys::Turns, "true", &Rules::ensureBool},
        {viewerkeys::TurnSpeed, "20", &ensureTurnSpeed},
    };
    for (const auto& setting : settings)
        Rules::RegisterSetting(setting.key, setting.defaultText, setting.validator);

    // Before the library's own keys, because the first registration of a key wins.
    Rules::RegisterSetting(keys::CacheSize, "1024", &Rules::ensureCacheSize);
    Rules::InitDefaultSettingsValues(applicationName);
    Rules::RegisterEndCheckFunction(&foldersDiffer);

    // The keys of the library's pages.
    QSettings defaults(VIEWER_DEFAULTS, QSettings::IniFormat);
    zel::ZelSettingsFile::UseFileEncoding(defaults);
    zel::ZelPageDefaults::Register(defaults);
}
