#include "ZelPageEdits.h"

namespace zel {

// Here, so that the library has the one table of virtual functions that dynamic_cast needs.
ZelPageEdits::~ZelPageEdits() = default;

} // namespace zel
