#pragma once

#include "workbench/importer/format/TGridPoint.h"

class TSexpression;

/**
 * How a symbol lies on its sheet: symbols are drawn with y upwards, turned by quarters, then mirrored, and set down on
 * a sheet whose y grows downwards.
 */
struct TSymbolFrame
{
    TGridPoint origin;
    int quarters = 0; ///< Turns by 90 degrees, counterclockwise.
    bool mirrorsX = false;
    bool mirrorsY = false;

    /** A place of the symbol on the sheet. */
    TGridPoint ToSheet(const TGridPoint& inSymbol) const
    {
        const TGridPoint step = Turned(inSymbol);
        return {origin.x + step.x, origin.y + step.y};
    }

    /** A step within the symbol as a step on the sheet. */
    TGridPoint Turned(const TGridPoint& inSymbol) const;

    static TSymbolFrame Read(const TSexpression& symbol);
};

/** The step of one nanometre that an angle of quarters, counterclockwise, points to in a frame with y upwards. */
TGridPoint UnitStep(int quarters);

/** The angle that ends `(at x y [angle])` as a number of quarters, 0 to 3; any other angle is an error. */
int Quarters(const TSexpression& at);
