#ifndef ZEL_VERSION_H
#define ZEL_VERSION_H

#include "base/ZelExport.h"

#include <QtGlobal>

namespace ZelControlCenter {

/// The version of this library. The texts are static and are never freed.
struct ZEL_EXPORT Version
{
    /// @{
    /// The parts of the version, and its year and month (1 to 12).
    static quint32 GetMajor();
    static quint32 GetMinor();
    static quint32 GetRelease();
    static quint32 GetRevision();
    static quint16 GetYear();
    static quint8 GetMonth();
    /// @}

    /// @{
    /// The version as text: "1.1.0.85", or with year and month "1.1.0.85 2024-1". The argument chooses the
    /// internal (true) or the public form; in this version both are the same.
    static const char* GetDescStringMajorMinor(bool internal);
    static const char* GetDescStringMajorMinorRelease(bool internal);
    static const char* GetDescStringMajorMinorReleaseRevision(bool internal);
    static const char* GetDescStringMajorMinorReleaseRevisionDate();
    /// @}
};

} // namespace ZelControlCenter

#endif
