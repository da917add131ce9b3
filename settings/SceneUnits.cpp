#include "SceneUnits.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace zel {

int sceneUnitIndex(float factor)
{
    const auto* unit =
        std::find_if(std::begin(SceneUnitFactors), std::end(SceneUnitFactors),
                     [factor](float candidate) { return std::fabs(factor - candidate) < 0.001F; });
    return unit == std::end(SceneUnitFactors) ? -1 : static_cast<int>(unit - SceneUnitFactors);
}

} // namespace zel
