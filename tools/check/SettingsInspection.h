#ifndef ZEL_SETTINGSINSPECTION_H
#define ZEL_SETTINGSINSPECTION_H

#include "SettingsMigration.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace zel {

/// A value that the validation pass would change.
struct SettingsChange
{
    QString key;
    bool isMissing;
    QString oldText;
    QString newText;
    QString reason; ///< Why, in English, as a predicate of the old value: "is out of range".
};

/// Finds out what migration and the validation pass would do to a settings file, without changing the file or
/// creating a folder. Skips the end checks of applications, because they may write.
class SettingsInspection
{
public:
    /// Inspects a file by the registered rules. ZelSettingsFile::IsUsable() must be true of it.
    explicit SettingsInspection(const QString& path);

    /// True when there is nothing to repair.
    bool isClean() const;

    /// The migration that precedes the pass. Only the editor makes a fresh start; a repair does not.
    Migration migration() const { return m_migration; }

    /// What the pass would lose of the file, as from settingsDamage(); empty when nothing.
    const QString& damage() const { return m_damage; }
    /// The values that migration and the pass would change.
    const std::vector<SettingsChange>& changes() const { return m_changes; }
    /// The folders that the pass would create.
    const QStringList& folders() const { return m_folders; }
    /// Why a start would fail: the pass would stop after the changes above, or the file cannot be written.
    /// Empty when it would not fail.
    const QString& error() const { return m_error; }

private:
    void inspectValues(const QString& path);

    Migration m_migration = Migration::None;
    QString m_damage;
    std::vector<SettingsChange> m_changes;
    QStringList m_folders;
    QString m_error;
};

} // namespace zel

#endif
