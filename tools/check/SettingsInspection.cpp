#include "SettingsInspection.h"

#include "FileAccess.h"
#include "FolderDryRun.h"
#include "SettingsDamage.h"
#include "SettingsKeys.h"
#include "SettingsValidation.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsValidators.h"

#include <algorithm>
#include <iterator>

namespace zel {

namespace {

using Registered = ZelSettingsRegistry::Settings::value_type;

/// Why a validator replaces a value by the default.
const struct
{
    ZelSettingsRegistry::Validator validator;
    const char* reason;
} Reasons[] = {
    {&ZelSettingsValidators::ensureSettingsVersion, "is not the current version"},
    {&ZelSettingsValidators::ensureEngine, "is neither deferred nor software"},
    {&ZelSettingsValidators::ensureBool, "is neither true nor false"},
    {&ZelSettingsValidators::ensureFile, "is not in an existing folder"},
    {&ZelSettingsValidators::ensureDMCacheFolder, "is not an existing folder"},
    {&ZelSettingsValidators::ensureTmpFolder, "is not an existing folder"},
};

QString cleanedUp(QString path)
{
    ZelSettingsValidators::CleanupFolder(path);
    return path;
}

QString shown(const QVariant& value)
{
    return isList(value) ? value.toStringList().join(", ") : value.toString();
}

QString reasonFor(const Registered& entry, const QVariant& oldValue, const QString& newText)
{
    const auto& defaultValue = entry.second.first;
    if (isList(oldValue))
        return "is a list: a text with a comma needs quotation marks";
    if (cleanedUp(oldValue.toString()) == newText)
        return "is not written the usual way";
    if (newText != defaultValue && newText != cleanedUp(defaultValue))
        return "is out of range, or not written the usual way";
    const auto* found = std::find_if(std::begin(Reasons), std::end(Reasons), [&entry](const auto& row) {
        return row.validator == entry.second.second;
    });
    return found == std::end(Reasons) ? "is not valid" : found->reason;
}

} // namespace

SettingsInspection::SettingsInspection(const QString& path)
{
    QByteArray content;
    if (!readFile(path, content, m_error))
        return;
    m_damage = settingsDamage(content);
    inspectValues(path);
    if (m_error.isEmpty())
        ZelSettingsFile::IsWritable(path, m_error);
}

bool SettingsInspection::isClean() const
{
    return m_damage.isEmpty() && m_changes.empty() && m_folders.isEmpty() && m_error.isEmpty();
}

void SettingsInspection::inspectValues(const QString& path)
{
    const auto settings = ZelSettingsFile::Open(path);
    m_migration = migrationOf(*settings);
    const FolderDryRun dryRun;
    const auto recordChange = [&](const Registered& entry, const QVariant& stored, const QString& text) {
        const QString& key = entry.first;
        if (!stored.isValid())
            m_changes.push_back({key, true, QString(), text, "is missing"});
        else if (m_migration == Migration::Upgrade && key == keys::Engine && text != engines::Deferred)
            m_changes.push_back({key, false, shown(stored), engines::Deferred,
                                 "is of an older version, whose engine is not kept"});
        else if (needsRepair(stored, text))
            m_changes.push_back({key, false, shown(stored), text, reasonFor(entry, stored, text)});
    };
    if (!validateSettings(*settings, m_error, recordChange) && m_error.isEmpty())
        m_error = "The default of a setting is not valid";
    m_folders = dryRun.folders();
}

} // namespace zel
