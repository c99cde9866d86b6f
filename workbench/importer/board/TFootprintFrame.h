#pragma once

#include "workbench/importer/board/TBoardDraft.h"

class TGraphicsPackageItem;

/** What the elements of a footprint take from it: they lie in its coordinates, but their angles are those of the board.
 */
struct TFootprintFrame
{
    TGraphicsPackageItem& package;
    qint64 angle = 0; ///< Counterclockwise, in millionths of a degree.
    TPadDefaults padDefaults;
    TextVariables::TValues textVariables;
};
