#ifndef ZEL_FILECHECK_H
#define ZEL_FILECHECK_H

#include "CheckReport.h"

namespace zel {

struct FileName;

/// Checks a settings file, and repairs it if that is wanted. The report of a file that cannot be read or
/// repaired has the reason.
CheckReport checkFile(const FileName& name, bool mayRepair);

} // namespace zel

#endif
