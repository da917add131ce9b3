#include "ZelSettingsRegistry.h"

#include "SettingsValidation.h"

#include <algorithm>
#include <vector>

namespace zel {

namespace {

ZelSettingsRegistry::Settings registry;
std::vector<ZelSettingsRegistry::EndCheck> endChecks;

} // namespace

bool ZelSettingsRegistry::RegisterSetting(const QString& key, const QString& defaultValue,
                                          Validator validator)
{
    return registry.emplace(key, std::make_pair(defaultValue, validator)).second;
}

QString ZelSettingsRegistry::GetDefaultSettingsValue(const QString& key)
{
    const auto found = registry.find(key);
    return found == registry.end() ? QString() : found->second.first;
}

const ZelSettingsRegistry::Settings& ZelSettingsRegistry::GetDefaultSettingsValues()
{
    return registry;
}

void ZelSettingsRegistry::ClearSettingsValues()
{
    registry.clear();
}

bool ZelSettingsRegistry::RegisterEndCheckFunction(EndCheck check)
{
    if (std::find(endChecks.begin(), endChecks.end(), check) != endChecks.end())
        return false;
    endChecks.push_back(check);
    return true;
}

bool ZelSettingsRegistry::EnsureSettings(QSettings& settings, QString& error)
{
    const auto write = [&settings](const Settings::value_type& entry, const QVariant&, const QString& text) {
        settings.setValue(entry.first, QVariant(text));
    };
    if (!validateSettings(settings, error, write))
        return false;
    settings.sync();
    return runEndChecks(settings, error);
}

bool runEndChecks(QSettings& settings, QString& error)
{
    return std::all_of(endChecks.begin(), endChecks.end(),
                       [&](ZelSettingsRegistry::EndCheck check) { return check(settings, error); });
}

} // namespace zel
