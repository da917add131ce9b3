#ifndef ZEL_SETTINGSINSPECTION_H
#define ZEL_SETTINGSINSPECTION_H

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

    /// True when the pass would leave everything as it is.
    bool isClean() const;

    /// True for a file of an older version that is kept: migrateSettings comes before the pass.
    bool isOlderVersion() const { return m_isOlderVersion; }

    /// What the pass would lose of the file, as settingsDamage tells it; empty when nothing.
    const QString& damage() const { return m_damage; }
    const std::vector<SettingsChange>& changes() const { return m_changes; }
    /// The folders that the pass would create.
    const QStringList& folders() const { return m_folders; }
    /// Why the pass would give up, which then is behind the changes above; empty when it would not.
    const QString& error() const { return m_error; }

private:
    void inspectValues(const QString& path);

    bool m_isOlderVersion = false;
    QString m_damage;
    std::vector<SettingsChange> m_changes;
    QStringList m_folders;
    QString m_error;
};

} // namespace zel

#endif
