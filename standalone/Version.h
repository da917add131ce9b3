#ifndef ZEL_VERSION_H
#define ZEL_VERSION_H

#include "base/ZelExport.h"

#include <QtGlobal>

namespace ZelControlCenter {

/// The version of this library. The texts are static and are never freed.
struct ZEL_EXPORT Version
{
    /// @{
    /// The parts of the version, and the year and the month, from 1 on, in which it was made.
    static quint32 GetMajor();
    static quint32 GetMinor();
    static quint32 GetRelease();
    static quint32 GetRevision();
    static quint16 GetYear();
    static quint8 GetMonth();
    /// @}

    /// @{
    /// The version as text, as in "1.1.0.85", with year and month as in "1.1.0.85 2024-1". The argument
    /// chooses between the internal and the public form of a text; this version has them alike.
    static const char* GetDescStringMajorMinor(bool internal);
    static const char* GetDescStringMajorMinorRelease(bool internal);
    static const char* GetDescStringMajorMinorReleaseRevision(bool internal);
    static const char* GetDescStringMajorMinorReleaseRevisionDate();
    /// @}
};

} // namespace ZelControlCenter

#endif
