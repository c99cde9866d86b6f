#pragma once

#include "workbench/importer/format/TGridPoint.h"

#include <graphics/engine/TBoxIndex.h>

#include <algorithm>

/** Boxes around places on the file's grid, in nanometres, which they hold exactly. */
namespace GridBoxes {

/** The smallest with both places. */
inline TBoxIndex::Box Spanning(const TGridPoint& one, const TGridPoint& other)
{
    const auto [left, right] = std::minmax(one.x, other.x);
    const auto [top, bottom] = std::minmax(one.y, other.y);
    return {static_cast<double>(left), static_cast<double>(top), static_cast<double>(right),
            static_cast<double>(bottom)};
}

/** The square whose sides are @p margin away from a place; for none the place itself. */
inline TBoxIndex::Box Around(const TGridPoint& place, qint64 margin = 0)
{
    return Spanning({place.x - margin, place.y - margin}, {place.x + margin, place.y + margin});
}

} // namespace GridBoxes
