#pragma once

namespace Osmirel {

/** The layers that the library knows by name. There may be others. */
enum Layer : int {
    NoLayer = 0,
    SchematicBuses = 21,
    PackagesTop = 59,
    CopperTop = 68, ///< The first of `maxCopperLayers`.
    PackagesBottom = 84,
    Milling = 96,
};

constexpr int maxCopperLayers = 8;

} // namespace Osmirel
