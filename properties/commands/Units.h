#pragma once

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

} // namespace Units
