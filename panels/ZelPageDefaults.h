#ifndef ZEL_ZELPAGEDEFAULTS_H
#define ZEL_ZELPAGEDEFAULTS_H

#include "base/ZelExport.h"

class QSettings;

namespace zel {

/// Registers the keys that only the settings pages use. The product chooses their defaults, in a file; their
/// validators are known here.
class ZEL_EXPORT ZelPageDefaults
{
public:
    /// Registers each of these keys that the file of defaults holds, with its validator. The default is the
    /// text as the validator leaves it: where the file asks for more processor cores than there are, it is
    /// their number. Call it before the validation pass. A key that is registered already keeps its default.
    ///
    /// An entry that no page knows, or whose text its validator refuses, is skipped with a warning in the
    /// log. There is also a warning when the file cannot be read to its end. A missing file registers
    /// nothing.
    static void Register(const QSettings& defaults);
};

} // namespace zel

#endif
