#pragma once

#include <QMetaType>

/** Names shared by all libraries of the application. */
namespace Osmirel {

/**
 * The layers that an item can lie on.
 *
 * Numbered from the top of a board to its bottom, so that each layer of one side has its counterpart of the other
 * side at 143 minus its own number (`OppositeLayer`).
 */
enum Layer : int {
    NoLayer = 0,

    SchematicNets = 20,
    SchematicBuses = 21,
    SchematicSymbols = 22,
    SchematicTexts = 23,

    PackagesTop = 59, ///< The side on which packages sit that are mounted from above.
    SilkTop = 61,
    PasteTop = 64,
    MaskTop = 66,

    CopperTop = 68, ///< Also the first of the eight keepout layers.
    Copper2 = 69,
    Copper3 = 70,
    Copper4 = 71,
    Copper5 = 72,
    Copper6 = 73,
    Copper7 = 74,
    CopperBottom = 75,

    MaskBottom = 77,
    PasteBottom = 79,
    SilkBottom = 82,
    PackagesBottom = 84,

    BoardOutline = 95,
    Milling = 96,

    DrawingsTop = 57, ///< Drawings of the assembled board.
    DrawingsBottom = 86,
    CourtyardTop = 58, ///< The area that packages occupy.
    CourtyardBottom = 85,
    AdhesiveTop = 63,
    AdhesiveBottom = 80,

    // User-defined, on neither side.
    UserDrawings = 100,
    UserComments = 101,
    UserEco1 = 102,
    UserEco2 = 103,
    Margin = 104,
    User1 = 111, ///< The first of nine.
    User9 = 119,
};

/** The most copper layers that a board can have: CopperTop to CopperBottom. */
constexpr int maxCopperLayers = CopperBottom - CopperTop + 1;

constexpr bool IsCopper(Layer layer)
{
    return layer >= CopperTop && layer <= CopperBottom;
}

/** The same kind of layer on the other side of the board; the layer itself if it belongs to neither side. */
constexpr Layer OppositeLayer(Layer layer)
{
    constexpr int sumOfOppositeLayers = CopperTop + CopperBottom;
    const bool hasSide = layer >= DrawingsTop && layer <= DrawingsBottom;
    return hasSide ? static_cast<Layer>(sumOfOppositeLayers - layer) : layer;
}

} // namespace Osmirel

Q_DECLARE_METATYPE(Osmirel::Layer)
