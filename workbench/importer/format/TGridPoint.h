#pragma once

#include <QHash>
#include <QPointF>

#include <utility>

/** A place on the file's own grid, in nanometres: equal places are the same however they were computed. */
struct TGridPoint
{
    qint64 x = 0;
    qint64 y = 0;

    bool operator==(const TGridPoint& other) const { return x == other.x && y == other.y; }
    bool operator!=(const TGridPoint& other) const { return !(*this == other); }
};

inline uint qHash(const TGridPoint& point, uint seed = 0)
{
    return qHash(std::make_pair(point.x, point.y), seed);
}
