#include "platform/kqDMRenderer.h"

kqDMRenderer::~kqDMRenderer() = default;

const QString kqDMRenderer::scQualityEnum[QualityCount] = {"Low", "Medium", "High", "Ultra"};

int kqDMRenderer::GetRaytracerQuality(const QString& name)
{
    for (int quality = 0; quality < QualityCount; ++quality) {
        if (scQualityEnum[quality] == name)
            return quality;
    }
    return 0;
}
