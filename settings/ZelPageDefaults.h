#ifndef ZEL_ZELPAGEDEFAULTS_H
#define ZEL_ZELPAGEDEFAULTS_H

#include "base/ZelExport.h"

class QSettings;

namespace zel {

/// The keys that only the settings pages use, with their defaults and their validators.
class ZEL_EXPORT ZelPageDefaults
{
public:
    /// Registers them. Call it before the validation pass. A key that is registered already keeps its
    /// default.
    ///
    /// A product may replace defaults, in a file: an entry has the form of Settings.ini, and the default is
    /// its text as the validator leaves it. An entry that no page knows, or whose text its validator refuses,
    /// is skipped with a warning in the log. There is also a warning when the file cannot be read to its end.
    static void Register(const QSettings& replacements);
};

} // namespace zel

#endif
