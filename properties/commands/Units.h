#pragma once

#include <cmath>
#include <limits>

/** Conversion between the user's units and those of items. */
namespace Units {

/** Scene units are 1/300 inch and an inch is 25.4 mm: 11.811023622047244 scene units per millimetre. */
constexpr double sceneUnitsPerMillimetre = 300 / 25.4;
static_assert(sceneUnitsPerMillimetre == 11.811023622047244);

constexpr double SceneFromMillimetres(double millimetres)
{
    return millimetres * sceneUnitsPerMillimetre;
}

constexpr double MillimetresFromScene(double sceneUnits)
{
    return sceneUnits / sceneUnitsPerMillimetre;
}

/** Truncates to an `int`, clamped to its range; 0 for NaN. */
inline int WholeFrom(double number)
{
    using Limits = std::numeric_limits<int>;
    if (std::isnan(number)) {
        return 0;
    }
    return number <= Limits::min() ? Limits::min() : number >= Limits::max() ? Limits::max() : static_cast<int>(number);
}

} // namespace Units
