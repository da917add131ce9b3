#ifndef ZEL_KQDMRENDERER_H
#define ZEL_KQDMRENDERER_H

#include "../base/ZelExport.h"

#include <QString>

/// The viewer's renderer. Owned by the application.
class ZEL_KERNEL_EXPORT kqDMRenderer
{
public:
    virtual ~kqDMRenderer();

    /// Limits the triangles that the renderer draws in one frame; takes effect at once.
    virtual void setTargetTriangles(quint64 triangles) = 0;

    enum { QualityCount = 4 };

    /// Names of the raytracer's qualities in Settings.ini, from the lowest to the highest.
    static const QString scQualityEnum[QualityCount];

    /// Index of a quality name in scQualityEnum; 0 for an unknown name.
    static int GetRaytracerQuality(const QString& name);
};

#endif
