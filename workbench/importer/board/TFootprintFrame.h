#pragma once

#include "workbench/importer/board/TBoardDraft.h"

class TGraphicsPackageItem;

/** The coordinate frame of a footprint's elements: positions are relative to it, angles to the board. */
struct TFootprintFrame
{
    TGraphicsPackageItem& package;
    qint64 angle = 0; ///< Counterclockwise, in millionths of a degree.
    TPadDefaults padDefaults;
    TextVariables::TValues textVariables;
};
