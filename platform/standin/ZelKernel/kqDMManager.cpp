#include "platform/kqDMManager.h"

#include <algorithm>
#include <cmath>

kqDMManager::~kqDMManager() = default;

bool kqDMManager::correctRatios(std::vector<float>& ratios)
{
    const float smallest = 0.01f;
    bool changed = false;
    float previous = 1.0f;
    for (std::size_t level = 0; level < ratios.size(); ++level) {
        float& ratio = ratios[level];
        const bool follows = level > 0 && !std::isnan(ratio);
        const float corrected = follows ? std::clamp(ratio, smallest, previous) : previous;
        changed = changed || ratio != corrected;
        ratio = previous = corrected;
    }
    return changed;
}
