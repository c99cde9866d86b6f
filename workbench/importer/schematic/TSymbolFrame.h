#pragma once

#include "workbench/importer/format/TGridPoint.h"

class TSexpression;

/**
 * The placement of a symbol on its sheet: symbols have y upwards, are rotated by quarters, then mirrored, and placed on
 * a sheet with y downwards.
 */
struct TSymbolFrame
{
    TGridPoint origin;
    int quarters = 0; ///< Turns by 90 degrees, counterclockwise.
    bool mirrorsX = false;
    bool mirrorsY = false;

    /** A point of the symbol in sheet coordinates. */
    TGridPoint ToSheet(const TGridPoint& inSymbol) const
    {
        const TGridPoint step = Turned(inSymbol);
        return {origin.x + step.x, origin.y + step.y};
    }

    /** A direction in the symbol as a direction on the sheet. */
    TGridPoint Turned(const TGridPoint& inSymbol) const;

    static TSymbolFrame Read(const TSexpression& symbol);
};

/** The step of one nanometre in the direction of an angle in counterclockwise quarters, with y upwards. */
TGridPoint UnitStep(int quarters);

/** The angle that ends `(at x y [angle])` as a number of quarters, 0 to 3; any other angle is an error. */
int Quarters(const TSexpression& at);
