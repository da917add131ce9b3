#include "SettingsInspection.h"

#include "FileAccess.h"
#include "FolderDryRun.h"
#include "SettingsDamage.h"
#include "SettingsKeys.h"
#include "SettingsReasons.h"
#include "SettingsValidation.h"
#include "SpareCopy.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsValidators.h"

#include <QTemporaryFile>

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

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

const char* const Unfinished = "a write was cut short, and has left a file \".unfinished\"";

/// As further passes leave it: each removes one slash from the end.
QString cleanedUp(QString path)
{
    for (QString former; path != former;) {
        former = path;
        ZelSettingsValidators::CleanupFolder(path);
    }
    return path;
}

QString reasonFor(const Registered& entry, const QVariant& oldValue, const QString& newText)
{
    if (isList(oldValue))
        return "is a list: a text with a comma needs quotation marks";
    if (cleanedUp(oldValue.toString()) == newText)
        return "is not written the usual way";
    const auto* found = std::find_if(std::begin(Reasons), std::end(Reasons), [&entry](const auto& row) {
        return row.validator == entry.second.second;
    });
    return found == std::end(Reasons) ? "is not valid" : found->reason;
}

/// Runs passes over the values of a file, without storing them, until one changes nothing, and then calls
/// visit(entry of the registry, stored value, resulting text). False, with the error text set, when a
/// validator gives up.
template <typename Visit>
bool settleValues(const QSettings& settings, QString& error, Visit visit)
{
    std::map<QString, std::pair<QVariant, QString>> values;
    bool isChanging = false;
    bool isValid = validateSettings(
        settings, error, [&](const Registered& entry, const QVariant& stored, const QString& text) {
            values[entry.first] = {stored, text};
            isChanging = isChanging || needsRepair(stored, text);
        });
    while (isValid && isChanging) {
        isChanging = false;
        for (const auto& [key, rule] : ZelSettingsRegistry::GetDefaultSettingsValues()) {
            QString& text = values[key].second;
            const QString former = text;
            isValid = isValid && rule.second(key, rule.first, text, error);
            isChanging = isChanging || text != former;
        }
    }
    if (!isValid && error.isEmpty())
        error = InvalidDefault;
    for (const Registered& entry : ZelSettingsRegistry::GetDefaultSettingsValues()) {
        if (isValid)
            visit(entry, values[entry.first].first, values[entry.first].second);
    }
    return isValid;
}

} // namespace

QString valueText(const QVariant& value)
{
    return isList(value) ? value.toStringList().join(", ") : value.toString();
}

SettingsInspection::SettingsInspection(const QString& path)
{
    QByteArray content;
    QString reason;
    const Deadline deadline;
    const SpareCopy spare(resolvedPath(path), deadline);
    if (!spare.readFinished(content, reason)) {
        refuseReading(path, reason, m_error);
        return;
    }
    m_damage = settingsDamage(content);
    if (spare.exists())
        m_damage = m_damage.isEmpty() ? QString(Unfinished) : Unfinished + ("; " + m_damage);
    // Of what has been read, and without serialised objects, because QSettings would decode them.
    QTemporaryFile readable;
    if (readable.open() && readable.write(withoutObjects(content)) >= 0 && readable.flush())
        inspectValues(*ZelSettingsFile::Open(readable.fileName()));
    else
        m_error = readable.errorString();
    // A start writes only what needs a change.
    if (m_error.isEmpty() && !(m_damage.isEmpty() && m_changes.empty()))
        ZelSettingsFile::IsWritable(path, m_error);
}

bool SettingsInspection::isClean() const
{
    return m_damage.isEmpty() && m_changes.empty() && m_folders.isEmpty() && m_error.isEmpty();
}

void SettingsInspection::inspectValues(const QSettings& settings)
{
    m_migration = migrationOf(settings);
    const FolderDryRun dryRun;
    const auto recordChange = [&](const Registered& entry, const QVariant& stored, const QString& text) {
        const QString& key = entry.first;
        const bool isUpgraded = m_migration == Migration::Upgrade && key == keys::Engine;
        if (!stored.isValid())
            m_changes.push_back({key, stored, text, "is missing"});
        else if (isUpgraded && text != engines::Deferred)
            m_changes.push_back(
                {key, stored, engines::Deferred, "is of an older version, whose engine is not kept"});
        else if (needsRepair(stored, text))
            m_changes.push_back({key, stored, text, reasonFor(entry, stored, text)});
    };
    settleValues(settings, m_error, recordChange);
    m_folders = dryRun.folders();
}

bool createFolders(const QString& path, QString& error)
{
    const auto ignore = [](const Registered&, const QVariant&, const QString&) {};
    return settleValues(*ZelSettingsFile::Open(path), error, ignore);
}

} // namespace zel
