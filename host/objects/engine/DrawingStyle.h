#pragma once

#include <QColor>

/** Drawing constants shared by the items of a board. */
namespace DrawingStyle {

inline constexpr QColor hole(0x10, 0x14, 0x1a);
inline constexpr QColor holeRim(0xd8, 0xdc, 0xe4);
inline constexpr QColor plating(0xc8, 0xb4, 0x6e); ///< Copper that goes through the whole board.
inline constexpr QColor blindPlating(0x9c, 0xa8, 0xd8);
inline constexpr QColor textOnCopper(0xff, 0xff, 0xff);
inline constexpr QColor ratLine(0xe6, 0xe6, 0xc8, 0x90);
inline constexpr QColor keepout(0xe0, 0x5a, 0x78);
inline constexpr QColor boardEdge(0xf2, 0xe2, 0x6a);
inline constexpr int alphaOfPourEdge = 200;

/** Drilled items are above the copper of all layers, whose z values are negative. */
constexpr double stackingOfDrilled = 1.0;
constexpr double stackingOfKeepouts = 1.2;
constexpr double stackingOfBoardEdge = 1.4;
constexpr double stackingOfRatLines = 1.6;
/** Pours are this far below all other copper of their layer. */
constexpr double depthOfPours = 0.5;

/** Texts smaller than this many pixels are not drawn. */
constexpr double smallestReadableText = 6.0;

} // namespace DrawingStyle
