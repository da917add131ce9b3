#ifndef ZEL_APPLICATIONROOT_H
#define ZEL_APPLICATIONROOT_H

namespace zel {

/// Makes the parent of the executable's folder the working directory: the paths of Qt's plug-ins and of the
/// translations are relative to it. False when the system does not allow it.
bool enterApplicationRoot();

} // namespace zel

#endif
