#ifndef ZEL_KQDMMANAGER_H
#define ZEL_KQDMMANAGER_H

#include "../base/ZelExport.h"

#include <vector>

/// The viewer's document manager: the 3D database cache and the simplifier. Owned by the application.
class ZEL_KERNEL_EXPORT kqDMManager
{
public:
    virtual ~kqDMManager();

    /// Limits the 3D database cache, in megabytes; takes effect at once.
    virtual void setMaxCacheSize(unsigned int megabytes) = 0;

    /// Hands the five kept fractions of triangles, level 1 first, to the running simplifier.
    virtual void setSimplificationRatios(std::vector<float>& ratios) = 0;

    /// Brings ratios into the simplifier's valid form: the first is 1, each lies in [0.01, 1], none is larger
    /// than the one before it. A value that is not a number becomes the one before it.
    /// Returns true when anything changed.
    static bool correctRatios(std::vector<float>& ratios);
};

#endif
