#ifndef ZEL_APPLICATIONROOT_H
#define ZEL_APPLICATIONROOT_H

namespace zel {

/// Makes the folder above the executable's folder the working directory: Qt's plug-ins and the translations
/// are found relative to it. False when the operating system does not allow it.
bool enterApplicationRoot();

} // namespace zel

#endif
