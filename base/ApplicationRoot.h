#ifndef ZEL_APPLICATIONROOT_H
#define ZEL_APPLICATIONROOT_H

namespace zel {

/// Makes the folder above the running executable's folder the working folder, because the toolkit's plug-ins
/// and the translations are looked up relative to it. False when the operating system does not allow it.
bool enterApplicationRoot();

} // namespace zel

#endif
