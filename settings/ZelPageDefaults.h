#ifndef ZEL_ZELPAGEDEFAULTS_H
#define ZEL_ZELPAGEDEFAULTS_H

#include "base/ZelExport.h"

class QSettings;

namespace zel {

/// The keys that the settings pages edit and that ZelSettingsCatalogue leaves to the application: what their
/// defaults are is for the product to say, which validator each of them has is known here.
class ZEL_EXPORT ZelPageDefaults
{
public:
    /// Registers each of the pages' keys that a file of defaults holds, with its validator and with the text
    /// that this makes of the default: as many cores as there are, say, if the file asks for more. Call it
    /// before the validation pass. Keys that have been registered before keep their defaults.
    ///
    /// An entry that no page knows, or whose text its validator refuses, is left out and told in the log. So
    /// is a file that cannot be read to its end. A file that does not exist registers nothing.
    static void Register(const QSettings& defaults);
};

} // namespace zel

#endif
