#pragma once

#include "workbench/importer/schematic/TSheetFile.h"
#include <graphics/engine/TBoxIndex.h>

/** Finds the lines of a sheet that pass through a point. */
class TLineFinder
{
public:
    explicit TLineFinder(const std::vector<TSheetLine>& ofLines);

    /** The indices of the lines that contain the point, ends included, in ascending order. */
    QVector<int> LinesOver(const TGridPoint& place) const;

    /** Whether a point is on the line between two others, ends included. */
    static bool IsOn(const TGridPoint& place, const TGridPoint& start, const TGridPoint& end);

private:
    const std::vector<TSheetLine>& lines;
    TBoxIndex boxes;
};
