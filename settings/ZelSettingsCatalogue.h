#ifndef ZEL_ZELSETTINGSCATALOGUE_H
#define ZEL_ZELSETTINGSCATALOGUE_H

#include "base/ZelExport.h"

#include <QString>

namespace zel {

/// The keys that the library itself registers.
class ZEL_EXPORT ZelSettingsCatalogue
{
public:
    /// Registers the library's own keys. Call it once, before the validation pass; keys that the application
    /// has registered before keep their defaults.
    /// @param applicationName  names the application's folders for settings and for its cache
    static void InitDefaultSettingsValues(const QString& applicationName);
};

} // namespace zel

#endif
