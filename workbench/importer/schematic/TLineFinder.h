#pragma once

#include "workbench/importer/schematic/TSheetFile.h"

/** Finds the lines of a sheet that pass over a place. */
class TLineFinder
{
public:
    explicit TLineFinder(const std::vector<TSheetLine>& ofLines);

    /** The indices of the lines with that place on them, ends included. */
    QVector<int> LinesOver(const TGridPoint& place) const;

    /** Whether a place is on the line between two others, ends included. */
    static bool IsOn(const TGridPoint& place, const TGridPoint& start, const TGridPoint& end);

private:
    const std::vector<TSheetLine>& lines;
    QHash<qint64, QVector<int>> horizontal; ///< By the height at which they lie.
    QHash<qint64, QVector<int>> vertical;   ///< By how far to the right they lie.
    QVector<int> slanting;
};
