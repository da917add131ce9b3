#ifndef ZEL_SETTINGSMIGRATION_H
#define ZEL_SETTINGSMIGRATION_H

#include <QString>

class QSettings;

namespace zel {

/// What becomes of a settings file when the editor starts.
enum class Migration { None, Upgrade, FreshStart };

/// What the version that settings are stamped with asks for; one without a number is too old.
Migration migrationOf(const QSettings& settings);

/// Brings the settings file of an older version up to date: an upgrade keeps its values. One whose layout is
/// too old starts again with nothing but the language; a dated copy of it is kept. False, with a translated
/// text, when the file cannot be written or copied: it is then as before.
bool migrateSettings(const QString& path, const QString& language, QString& error);

} // namespace zel

#endif
