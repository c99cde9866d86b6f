#pragma once

#include <QColor>

/** What the items of a board have in common when they draw themselves. */
namespace DrawingStyle {

inline constexpr QColor hole(0x10, 0x14, 0x1a);
inline constexpr QColor holeRim(0xd8, 0xdc, 0xe4);
inline constexpr QColor plating(0xc8, 0xb4, 0x6e); ///< Copper that goes through the whole board.
inline constexpr QColor blindPlating(0x9c, 0xa8, 0xd8);
inline constexpr QColor textOnCopper(0xff, 0xff, 0xff);

/** Drilled items lie above the copper of every layer, whose heights are negative. */
constexpr double stackingOfDrilled = 1.0;

/** Below this many pixels a text is not worth drawing. */
constexpr double smallestReadableText = 6.0;

} // namespace DrawingStyle
