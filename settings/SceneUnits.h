#ifndef ZEL_SCENEUNITS_H
#define ZEL_SCENEUNITS_H

namespace zel {

/// The scene units that settings can hold, from the kilometre to the millimetre: how many of the unit make
/// one metre.
const float SceneUnitFactors[] = {0.001F, 0.01F, 0.1F, 1.F, 10.F, 100.F, 1000.F};
const int SceneUnitCount = sizeof(SceneUnitFactors) / sizeof(*SceneUnitFactors);

/// Index of the first unit closer than 0.001 to the factor; -1 when there is none. The tolerance is the same
/// for every unit, so anything between 0 and 0.002 is a kilometre.
int sceneUnitIndex(float factor);

} // namespace zel

#endif
