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

    /// Sets the five kept fractions of triangles, level 1 first; takes effect at once.
    virtual void setSimplificationRatios(std::vector<float>& ratios) = 0;

    /// Corrects ratios: the first becomes 1, each lies in [0.01, 1], and none is larger than the one before.
    /// A NaN becomes the one before. Returns true when anything has changed.
    static bool correctRatios(std::vector<float>& ratios);
};

#endif
