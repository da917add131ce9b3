#ifndef ZEL_SETTINGSNUMBERS_H
#define ZEL_SETTINGSNUMBERS_H

#include <QString>
#include <QStringList>

#include <cmath>
#include <vector>

namespace zel {

/// Reads a single-precision number. False for surrounding text, for "nan", which no setting can mean, and for
/// numbers too large or too small; "inf" is one.
inline bool parseFloat(const QString& text, float& number)
{
    // Not QString::toFloat(), which has other limits in Qt 4.8.
    bool parsed = false;
    const double exact = text.toDouble(&parsed);
    number = static_cast<float>(exact);
    return parsed && !std::isnan(exact) && std::isinf(exact) == std::isinf(number) &&
           (exact == 0) == (number == 0);
}

/// Writes a number in general notation with six significant digits.
inline QString numberText(double number)
{
    return QString::number(number, 'g', 6);
}

/// Writes simplification ratios, separated by "/".
inline QString ratiosText(const std::vector<float>& ratios)
{
    QStringList parts;
    for (const float ratio : ratios)
        parts << numberText(ratio);
    return parts.join("/");
}

// The limits of what both a validator and a page accept.
const int MinimumMebibytes = 128;  ///< Of each kind of memory.
const int MaximumMebibytes = 8096; ///< On purpose not 8192.
const int MinimumTriangles = 50000;
const int MaximumTriangles = 500000000;
const int MaximumFaceAngle = 359; ///< Degrees.

/// The scene units, from the kilometre to the millimetre: how many of the unit make one metre.
const float SceneUnitFactors[] = {0.001F, 0.01F, 0.1F, 1.F, 10.F, 100.F, 1000.F};
const int SceneUnitCount = sizeof(SceneUnitFactors) / sizeof(*SceneUnitFactors);

/// Index of the first unit closer than 0.001 to the factor; -1 when there is none. The tolerance is the same
/// for every unit, so anything between 0 and 0.002 is a kilometre.
inline int sceneUnitIndex(float factor)
{
    for (int unit = 0; unit < SceneUnitCount; ++unit) {
        if (std::fabs(factor - SceneUnitFactors[unit]) < 0.001F)
            return unit;
    }
    return -1;
}

} // namespace zel

#endif
