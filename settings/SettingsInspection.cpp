#include "SettingsInspection.h"

#include "FolderCreation.h"
#include "SettingsDamage.h"
#include "ZelSettingsFile.h"
#include "ZelSettingsRegistry.h"
#include "ZelSettingsValidators.h"

#include <QFile>
#include <QSettings>
#include <QVariant>

#include <algorithm>
#include <iterator>

namespace zel {

namespace {

typedef ZelSettingsRegistry::Validator Validator;

/// Why the validators replace a value by the default.
const struct
{
    Validator validator;
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

bool isList(const QVariant& value)
{
    return value.type() == QVariant::StringList || value.type() == QVariant::List;
}

QString shown(const QVariant& value)
{
    return isList(value) ? value.toStringList().join(", ") : value.toString();
}

QString reasonFor(const QVariant& oldValue, const QString& newText, const QString& defaultValue,
                  Validator validator)
{
    if (isList(oldValue))
        return "is a list: a text with a comma needs quotation marks";
    if (cleanedUp(oldValue.toString()) == newText)
        return "is not written the usual way";
    if (newText != defaultValue && newText != cleanedUp(defaultValue))
        return "is out of range, or not written the usual way";
    const auto* found = std::find_if(std::begin(Reasons), std::end(Reasons),
                                     [validator](const auto& row) { return row.validator == validator; });
    return found == std::end(Reasons) ? "is not valid" : found->reason;
}

} // namespace

SettingsInspection::SettingsInspection(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        m_damage = settingsDamage(file.readAll());
    inspectValues(path);
}

bool SettingsInspection::isClean() const
{
    return m_damage.isEmpty() && m_changes.empty() && m_folders.isEmpty() && m_error.isEmpty();
}

void SettingsInspection::inspectValues(const QString& path)
{
    QSettings settings(path, QSettings::IniFormat);
    ZelSettingsFile::UseFileEncoding(settings);
    const FolderRehearsal rehearsal;
    for (const auto& [key, rule] : ZelSettingsRegistry::GetDefaultSettingsValues()) {
        const auto& [defaultValue, validator] = rule;
        const bool missing = !settings.contains(key);
        const QVariant stored = settings.value(key, defaultValue);
        QString text = stored.toString();
        if (!validator(key, defaultValue, text, m_error)) {
            if (m_error.isEmpty())
                m_error = QString("The default of \"%1\" is not valid").arg(key);
            break;
        }
        if (missing)
            m_changes.push_back({key, true, QString(), text, "is missing"});
        else if (isList(stored) || text != stored.toString())
            m_changes.push_back(
                {key, false, shown(stored), text, reasonFor(stored, text, defaultValue, validator)});
    }
    m_folders = rehearsal.folders();
}

} // namespace zel
