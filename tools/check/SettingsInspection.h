#ifndef ZEL_SETTINGSINSPECTION_H
#define ZEL_SETTINGSINSPECTION_H

#include "SettingsMigration.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <vector>

namespace zel {

/// A value that the validation pass would change.
struct SettingsChange
{
    QString key;
    QVariant old; ///< Invalid for a missing key.
    QString newText;
    QString reason; ///< Why, in English, as a predicate of the old value: "is missing".
};

/// The text of a stored value, which may be a list.
QString valueText(const QVariant& value);

/// Finds out what migration and the validation pass would do to a settings file, without changing the file or
/// creating a folder. Skips the end checks of applications, because they may write.
class SettingsInspection
{
public:
    /// Inspects a file by the registered rules.
    explicit SettingsInspection(const QString& path);

    /// True when there is nothing to repair.
    bool isClean() const;

    /// The migration that precedes the pass. Only the editor makes a fresh start; a repair does not.
    Migration migration() const { return m_migration; }

    /// What the pass would lose of the file, as from settingsDamage(), and whether it would finish a write
    /// that was cut short; empty when nothing.
    const QString& damage() const { return m_damage; }
    /// The values that migration and passes would change, until a further pass changes nothing.
    const std::vector<SettingsChange>& changes() const { return m_changes; }
    /// The folders that the passes would create.
    const QStringList& folders() const { return m_folders; }
    /// Why a start would fail: a validator gives up, or the file needs a change and cannot be written. Empty
    /// when it would not fail.
    const QString& error() const { return m_error; }

private:
    void inspectValues(const QSettings& settings);

    Migration m_migration = Migration::None;
    QString m_damage;
    std::vector<SettingsChange> m_changes;
    QStringList m_folders;
    QString m_error;
};

/// Creates the folders that the validators need for a settings file. False, with the error text set, when one
/// of them gives up.
bool createFolders(const QString& path, QString& error);

} // namespace zel

#endif
