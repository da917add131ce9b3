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
    QString reason; ///< In English, to follow the old value: "is out of range".
};

/// What the migration of an older version and the validation pass would do with a settings file. Looking
/// changes nothing: neither the file, nor any folder that the pass would create. End checks of an application
/// are not run, because they may write.
class SettingsInspection
{
public:
    /// Looks at a file, which must be usable, by the rules that are registered.
    explicit SettingsInspection(const QString& path);

    /// True when the pass would leave every value as it is.
    bool isClean() const;

    /// What becomes of the file before the pass; a fresh start is an editor's alone.
    Migration migration() const { return m_migration; }

    /// What the pass would lose of the file, as settingsDamage tells it; empty when nothing.
    const QString& damage() const { return m_damage; }
    const std::vector<SettingsChange>& changes() const { return m_changes; }
    /// The folders that the pass would create.
    const QStringList& folders() const { return m_folders; }
    /// Why a start would fail: the pass would give up, behind the changes above, or the file cannot be
    /// written. Empty when it would not.
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
