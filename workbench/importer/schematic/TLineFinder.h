#pragma once

#include "workbench/importer/schematic/TSheetFile.h"

/** Finds the lines of a sheet that pass through a point. */
class TLineFinder
{
public:
    explicit TLineFinder(const std::vector<TSheetLine>& ofLines);

    /** The indices of the lines that contain the point, ends included. */
    QVector<int> LinesOver(const TGridPoint& place) const;

    /** Whether a point is on the line between two others, ends included. */
    static bool IsOn(const TGridPoint& place, const TGridPoint& start, const TGridPoint& end);

private:
    const std::vector<TSheetLine>& lines;
    QHash<qint64, QVector<int>> horizontal; ///< By y.
    QHash<qint64, QVector<int>> vertical;   ///< By x.
    QVector<int> slanting;
};
