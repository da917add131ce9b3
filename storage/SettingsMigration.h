#ifndef ZEL_SETTINGSMIGRATION_H
#define ZEL_SETTINGSMIGRATION_H

#include <QString>

namespace zel {

/// Whether a file of this version keeps its values; an older one starts afresh.
bool isUpgradedInPlace(int version);

/// Brings the settings file of an older version up to date. One whose layout is too old to be kept starts
/// afresh, with nothing but the language; a dated copy of it is kept.
/// False, with a translated text, when the file cannot be written or copied: it is then as before.
bool migrateSettings(const QString& path, const QString& language, QString& error);

} // namespace zel

#endif
