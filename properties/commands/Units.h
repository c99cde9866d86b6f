#pragma once

#include <cmath>
#include <limits>

/** Conversion of what the user edits into what the items hold. */
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

/** Cuts off the fraction. What is beyond the range of whole numbers becomes the last one there, and no number 0. */
inline int WholeFrom(double number)
{
    using Limits = std::numeric_limits<int>;
    if (std::isnan(number)) {
        return 0;
    }
    return number <= Limits::min() ? Limits::min() : number >= Limits::max() ? Limits::max() : static_cast<int>(number);
}

} // namespace Units
