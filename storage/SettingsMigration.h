#ifndef ZEL_SETTINGSMIGRATION_H
#define ZEL_SETTINGSMIGRATION_H

#include <QString>

class QSettings;

namespace zel {

/// What becomes of a settings file of an older version when the editor starts.
enum class Migration {
    None,      ///< It is current, or newer.
    Upgrade,   ///< Its values stay, except the version and the engine, which becomes "deferred".
    FreshStart ///< Nothing stays but the language.
};

/// What "settingsVersion" asks for; a missing one, or one that is no number, is too old.
Migration migrationOf(const QSettings& settings);

/// Migrates a settings file. Before a fresh start a dated copy of it is kept. False, with a translated text,
/// when the file cannot be written or copied: it is then as before.
/// @param language  the two-letter code that a fresh start stores
bool migrateSettings(const QString& path, const QString& language, QString& error);

} // namespace zel

#endif
